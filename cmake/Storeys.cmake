# One static library a storey. A room says in its CMakeLists.txt which of its files stand on which storey:
#     storey(cores matching cell_geometry)
# names engine/matching.{h,cpp} and engine/cell_geometry.{h,cpp}; a missing .cpp or .h is fine. A name with its ending
# is that one file. A file that stands there as a template, matching.h.in, is written for all windows (Windows.cmake).
# tools/check_floors reads the same lines, so the linker and the include check can't disagree.

set(storeys ground records cores procedures handlers)
foreach(name IN LISTS storeys)
    add_library(${name} STATIC)
    target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR})
    set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
endforeach()

# Reads what most files include once. Whether each file includes what it needs is seen without: the linter reads
# it so, and a development build is made so.
if(TESSALOOM_READ_ONCE)
    set(read_by_all <algorithm> <array> <filesystem> <functional> <map> <memory> <optional> <span> <string> <string_view>
                    <utility> <vector>)
    foreach(name IN ITEMS ground records)  # the ground has settings of its libraries besides
        target_precompile_headers(${name} PRIVATE ${read_by_all})
    endforeach()
    target_precompile_headers(cores REUSE_FROM records)
    # The session's main window, or all of its windows, are half of what such a source takes.
    target_precompile_headers(procedures PRIVATE ${read_by_all} ${CMAKE_SOURCE_DIR}/session/frmMain.h)
    target_precompile_headers(handlers PRIVATE ${read_by_all} ${CMAKE_BINARY_DIR}/windows/session/windows.h)
endif()

function(storey name)
    foreach(stem IN LISTS ARGN)
        string(REGEX REPLACE "\\.(h|cpp)$" "" base ${CMAKE_CURRENT_SOURCE_DIR}/${stem})
        name_templates(${name} ${base})
        if(NOT EXISTS ${base}.h AND NOT EXISTS ${base}.cpp AND NOT EXISTS ${base}.h.in)
            message(FATAL_ERROR "${base}: neither .h nor .cpp is there")
        endif()
        if(EXISTS ${base}.cpp AND NOT stem MATCHES "\\.h$")
            target_sources(${name} PRIVATE ${base}.cpp)
        endif()
        if(EXISTS ${base}.h AND NOT stem MATCHES "\\.cpp$")
            target_sources(${name} PUBLIC FILE_SET house_headers TYPE HEADERS BASE_DIRS ${CMAKE_SOURCE_DIR}
                                   FILES ${base}.h)
        endif()
    endforeach()
endfunction()

# Has the sources of a room compiled as one, where headers are read once as well: what templates they share is made once.
# So no two of them can have helpers of one name; one that has to says SKIP_UNITY_BUILD_INCLUSION. Handlers of windows may
# be of one name: they are put together by folder.
function(compiled_by_room program)
    if(NOT TESSALOOM_READ_ONCE)
        return()
    endif()
    get_target_property(sources ${program} SOURCES)
    get_target_property(at ${program} SOURCE_DIR)
    foreach(source IN LISTS sources)
        if(NOT source MATCHES "\\.cpp$")
            continue()
        endif()
        cmake_path(ABSOLUTE_PATH source BASE_DIRECTORY ${at} NORMALIZE)
        cmake_path(GET source PARENT_PATH room)
        cmake_path(RELATIVE_PATH room BASE_DIRECTORY ${CMAKE_SOURCE_DIR})
        if(NOT program STREQUAL handlers)
            string(REGEX MATCH "^(tests/)?[^/]+" room ${room})
        endif()
        string(MAKE_C_IDENTIFIER ${room} room)
        set_source_files_properties(${source} TARGET_DIRECTORY ${program} PROPERTIES UNITY_GROUP ${room})
    endforeach()
    set_target_properties(${program} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
    # GCC gathers up what it has done with less often: such a unit takes an eighth less for a tenth more memory.
    target_compile_options(${program} PRIVATE $<$<CXX_COMPILER_ID:GNU>:--param=ggc-min-heapsize=1000000>)
    # What one source names at its top may be what another calls a variable; and a fixture of a source that is included
    # looks to GCC as if others saw it.
    target_compile_options(${program} PRIVATE -Wno-shadow $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
endfunction()

# Links each storey to the one below it and has every header compiled alone. A storey without a source file gets an
# empty one, since an archive needs a member.
function(finish_storeys)
    target_link_libraries(ground PRIVATE FreeImage::FreeImage JPEG::JPEG LibArchive::LibArchive PkgConfig::LCMS TIFF::TIFF asio)
    target_link_libraries(records PUBLIC ground)
    target_link_libraries(cores PUBLIC records)
    target_link_libraries(procedures PUBLIC cores)
    target_link_libraries(handlers PUBLIC procedures)
    foreach(name IN LISTS storeys)
        get_target_property(sources ${name} SOURCES)
        if(NOT sources)
            file(WRITE ${CMAKE_BINARY_DIR}/${name}_empty.cpp "")
            target_sources(${name} PRIVATE ${CMAKE_BINARY_DIR}/${name}_empty.cpp)
        endif()
        set_target_properties(${name} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON)
        if(TESSALOOM_BY_ROOM)
            compiled_by_room(${name})
        endif()
    endforeach()
endfunction()

# Has the headers of a program's library compiled alone as well.
function(headers_alone target)
    get_target_property(folder ${target} SOURCE_DIR)
    file(GLOB_RECURSE headers CONFIGURE_DEPENDS ${folder}/*.h)
    target_sources(${target} PUBLIC FILE_SET house_headers TYPE HEADERS BASE_DIRS ${CMAKE_SOURCE_DIR} FILES ${headers})
    set_target_properties(${target} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON)
    # Each decoder has names of its own for what its library opens.
    if(TESSALOOM_BY_ROOM AND NOT target STREQUAL decode_side)
        compiled_by_room(${target})
    endif()
endfunction()
