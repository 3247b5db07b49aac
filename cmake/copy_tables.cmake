# Copies the tables that have changed: cmake -D FROM=… -D TO=… -D TABLES=… -P copy_tables.cmake
# The catalogue goes along a second time, as designs.seed: beside a portable program designs.ini becomes the user's.
foreach(table IN LISTS TABLES)
    get_filename_component(folder ${TO}/${table} DIRECTORY)
    file(MAKE_DIRECTORY ${folder})
    file(COPY_FILE ${FROM}/${table} ${TO}/${table} ONLY_IF_DIFFERENT)
endforeach()
file(COPY_FILE ${FROM}/designs.ini ${TO}/designs.seed ONLY_IF_DIFFERENT)
