# The packages that `package` makes: an archive that runs from any folder, with programs and data side by side, and two
# packages for Debian, of the programs and of their data. What is in which, the components say:
#     programs, data, desktop   what `cmake --install` installs, and the archive
#     programs, desktop, links  Debian's package tessaloom
#     shared                    Debian's package tessaloom-data

set(own_doc ${CMAKE_INSTALL_DATADIR}/doc/tessaloom)
configure_file(copyright.in ${made}/copyright @ONLY)
configure_file(changelog.in ${made}/changelog @ONLY)
add_custom_command(OUTPUT ${made}/changelog.gz
    COMMAND gzip -9nc ${made}/changelog > ${made}/changelog.gz
    DEPENDS ${made}/changelog VERBATIM)
add_custom_target(package_files ALL DEPENDS ${made}/changelog.gz)
install(FILES ${made}/copyright ${made}/changelog.gz DESTINATION ${own_doc} COMPONENT desktop)
install(FILES ${made}/copyright ${made}/changelog.gz DESTINATION ${own_doc}-data COMPONENT shared EXCLUDE_FROM_ALL)

# Data that all machines share lies under share; the programs find it beside them all the same, through links.
set(shared ${CMAKE_INSTALL_DATADIR}/tessaloom)
install(CODE "
    include(\"${CMAKE_SOURCE_DIR}/cmake/app/bring.cmake\")
    bring(\"${CMAKE_BINARY_DIR}/seed\" \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${shared}\")"
    COMPONENT shared EXCLUDE_FROM_ALL)
install(CODE "
    include(\"${CMAKE_SOURCE_DIR}/cmake/app/bring.cmake\")
    link_to(\"${CMAKE_BINARY_DIR}/seed\" \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${shared}\"
            \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR}/tessaloom\")"
    COMPONENT links EXCLUDE_FROM_ALL)

set(CPACK_GENERATOR TGZ)
find_program(DPKG_SHLIBDEPS dpkg-shlibdeps)
if(DPKG_SHLIBDEPS)
    list(APPEND CPACK_GENERATOR DEB)
endif()
set(CPACK_PACKAGE_VENDOR "Tessaloom")
set(CPACK_PACKAGE_CONTACT "The Tessaloom developers <developers@tessaloom.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL ${TESSALOOM_DOCUMENTATION})
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ
                                                WORLD_EXECUTE)
set(CPACK_THREADS 0)
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_SOURCE_DIR}/by_kind.cmake)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/alike.cmake)
set(CPACK_POST_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/members.cmake)
set(CPACK_SOURCE_DATE ${SOURCE_DATE})

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS OFF)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_COMPRESSION_TYPE gzip)  # and xz at last for the programs (members.cmake)

set(CPACK_DEBIAN_APPLICATION_PACKAGE_NAME tessaloom)
set(CPACK_DEBIAN_APPLICATION_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_APPLICATION_PACKAGE_SHLIBDEPS ON)
# The fonts are for captions.
set(CPACK_DEBIAN_APPLICATION_PACKAGE_DEPENDS
    "tessaloom-data (= ${PROJECT_VERSION}), fonts-dejavu-core | fonts-freefont-ttf | fonts-liberation")
set(CPACK_DEBIAN_APPLICATION_PACKAGE_RECOMMENDS "fonts-vollkorn, qt6-wayland, qt6-xdgdesktopportal-platformtheme")
set(CPACK_COMPONENT_APPLICATION_DESCRIPTION "Tessaloom makes large posters of photos: pick a design or a quick style,
adjust it under a live preview, save and print the poster.
.
This package holds the window, the program for scripts, the one that makes
photos of any kind ready and the one that makes packages of designs.")

set(CPACK_DEBIAN_SHARED_PACKAGE_NAME tessaloom-data)
set(CPACK_DEBIAN_SHARED_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_SHARED_PACKAGE_ARCHITECTURE all)
set(CPACK_COMPONENT_SHARED_DESCRIPTION "Tessaloom makes large posters of photos: pick a design or a quick style,
adjust it under a live preview, save and print the poster.
.
This package holds its designs, frames, backgrounds, letters and help.")

include(CPack)
