# What is drawn with letters during the build, and what the tests draw and measure, sees twelve faces of one family and
# neither other fonts nor settings of the machine: it comes out the same everywhere. There are more faces of that family,
# condensed ones for instance, which may or may not lie in the same folder, so each is named by its file. Writes
# fonts.conf, for FONTCONFIG_FILE, into the build tree.
set(FONT_FOLDERS "")
set(FONT_FILES "")
foreach(face IN ITEMS Sans Sans-Bold Sans-Oblique Sans-BoldOblique SansMono SansMono-Bold SansMono-Oblique
                      SansMono-BoldOblique Serif Serif-Bold Serif-Italic Serif-BoldItalic)
    find_file(DEJAVU_${face} DejaVu${face}.ttf REQUIRED PATHS /usr/share/fonts /usr/local/share/fonts
              PATH_SUFFIXES truetype/dejavu TTF dejavu dejavu-sans-fonts dejavu-sans-mono-fonts dejavu-serif-fonts NO_DEFAULT_PATH)
    mark_as_advanced(DEJAVU_${face})
    get_filename_component(folder ${DEJAVU_${face}} DIRECTORY)
    list(APPEND FONT_FOLDERS "<dir>${folder}</dir>")
    list(APPEND FONT_FILES "<acceptfont><glob>${DEJAVU_${face}}</glob></acceptfont>")
endforeach()
list(REMOVE_DUPLICATES FONT_FOLDERS)
list(JOIN FONT_FOLDERS "\n    " FONT_FOLDERS)
list(JOIN FONT_FILES "\n        " FONT_FILES)
set(own_fonts_file ${CMAKE_BINARY_DIR}/fonts.conf)
configure_file(${CMAKE_CURRENT_LIST_DIR}/fonts.conf.in ${own_fonts_file} @ONLY)
