# Has dpkg-deb write the Debian packages once more: CPack gives their members the rights that the umask of the build leaves. Run
# by CPack.
if(CPACK_GENERATOR STREQUAL "DEB")
    foreach(package IN LISTS CPACK_PACKAGE_FILES)
        set(apart ${package}.apart)
        file(REMOVE_RECURSE ${apart})
        execute_process(COMMAND dpkg-deb -R ${package} ${apart} COMMAND_ERROR_IS_FATAL ANY)
        execute_process(COMMAND chmod 755 ${apart} ${apart}/DEBIAN COMMAND_ERROR_IS_FATAL ANY)
        # The data is nearly all JPEGs, which get no smaller: xz would take minutes for a hundredth.
        set(method xz)
        if(package MATCHES "-data_")
            set(method gzip)
        endif()
        execute_process(COMMAND dpkg-deb -Z${method} --root-owner-group -b ${apart} ${package} OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
        file(REMOVE_RECURSE ${apart})
    endforeach()
endif()
