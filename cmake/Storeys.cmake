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

# Reads what most files include once a storey. Whether each file includes what it needs is seen without: the linter reads
# it so, and a development build is made so.
if(TESSALOOM_READ_ONCE)
    foreach(name IN LISTS storeys)
        target_precompile_headers(${name} PRIVATE <algorithm> <array> <filesystem> <functional> <map> <memory> <optional>
                                                  <span> <string> <string_view> <utility> <vector>)
    endforeach()
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
    endforeach()
endfunction()

# Has the headers of a program's library compiled alone as well.
function(headers_alone target)
    get_target_property(folder ${target} SOURCE_DIR)
    file(GLOB_RECURSE headers CONFIGURE_DEPENDS ${folder}/*.h)
    target_sources(${target} PUBLIC FILE_SET house_headers TYPE HEADERS BASE_DIRS ${CMAKE_SOURCE_DIR} FILES ${headers})
    set_target_properties(${target} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON)
endfunction()
