# How a release is compiled, beside what every build is: hardened, as the programs read files from anywhere, and without a
# trace of the folder it was built in, so that the same sources give the same bytes. tests/tools/shipped_test.py looks at
# what comes of it.
add_compile_options("$<$<CONFIG:Release>:-fstack-protector-strong;-fstack-clash-protection;-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
add_compile_options("$<$<CONFIG:Release>:-ffile-prefix-map=${CMAKE_SOURCE_DIR}/=;-ffile-prefix-map=${CMAKE_BINARY_DIR}/=build/>")
add_link_options("$<$<CONFIG:Release>:LINKER:-z,relro,-z,now>")
