# Asio is headers alone and comes without a package file. Defines asio.
find_path(asio_INCLUDE_DIR asio/thread_pool.hpp)
find_package(Threads REQUIRED)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(asio REQUIRED_VARS asio_INCLUDE_DIR)
if(asio_FOUND AND NOT TARGET asio)
    add_library(asio INTERFACE IMPORTED)
    set_target_properties(asio PROPERTIES INTERFACE_INCLUDE_DIRECTORIES ${asio_INCLUDE_DIR}
                                          INTERFACE_COMPILE_DEFINITIONS ASIO_STANDALONE
                                          INTERFACE_LINK_LIBRARIES Threads::Threads)
endif()
