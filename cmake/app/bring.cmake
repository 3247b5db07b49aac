# Brings the seed data to a program folder: bring(FROM TO). Only files that differ are written, and only the program's:
# with a file `portable` beside the program that folder is the user's data folder as well, so that what the program
# keeps there is supplied where it is missing and never replaced. A newer catalogue comes as designs.seed.
# As a script:   cmake -D FROM=… -D TO=… -D PROGRAMS=… -P bring.cmake

cmake_policy(VERSION 3.25)
set(users_names designs.ini designs.supplied tmp designs descriptions samples piclists user_images frames icons alpha puzzle)

# The files of FROM that may be written to TO.
function(files_to_bring result from to)
    file(GLOB_RECURSE files RELATIVE ${from} ${from}/*)
    if(EXISTS ${to}/portable)
        set(wanted)
        foreach(file IN LISTS files)
            string(REGEX MATCH "^[^/]+" name "${file}")
            if(NOT name IN_LIST users_names OR NOT EXISTS "${to}/${file}")
                list(APPEND wanted ${file})
            endif()
        endforeach()
        set(files ${wanted})
    endif()
    set(${result} "${files}" PARENT_SCOPE)
endfunction()

# Brings one file where its content differs, in one step: a program that reads it meanwhile gets the old or the new one.
function(bring_file from to)
    if(EXISTS ${to})
        file(MD5 ${from} new)
        file(MD5 ${to} old)
        if(new STREQUAL old)
            return()
        endif()
    endif()
    get_filename_component(folder ${to} DIRECTORY)
    file(MAKE_DIRECTORY ${folder})
    file(COPY_FILE ${from} ${to}.part)
    file(CHMOD ${to}.part PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ ${ARGN})
    file(RENAME ${to}.part ${to})
endfunction()

function(bring from to)
    put_aside_earlier_data(${to})
    files_to_bring(files ${from} ${to})
    foreach(file IN LISTS files)
        bring_file(${from}/${file} ${to}/${file})
    endforeach()
endfunction()

# Links each name of FROM that has a file in it from the folder TO to where the data lies: link_to(FROM DATA TO).
function(link_to from data to)
    file(GLOB_RECURSE files RELATIVE ${from} ${from}/*)
    list(TRANSFORM files REPLACE "/.*" "")
    list(REMOVE_DUPLICATES files)
    file(MAKE_DIRECTORY ${to})
    file(RELATIVE_PATH way ${to} ${data})
    foreach(name IN LISTS files)
        file(CREATE_LINK ${way}/${name} ${to}/${name} SYMBOLIC)
    endforeach()
endfunction()

# An earlier version kept the user's data in a program folder that it could write; this one keeps it in the user's data
# home. What was kept there is put beside the folder, whole.
function(put_aside_earlier_data to)
    if(NOT EXISTS ${to}/3_1_install OR EXISTS ${to}/portable)
        return()
    endif()
    string(TIMESTAMP now "%Y%m%d_%H%M%S")
    set(aside ${to}_data_${now})
    file(MAKE_DIRECTORY ${aside})
    foreach(name IN ITEMS 3_1_install 4_2_install ${users_names})
        if(EXISTS ${to}/${name})
            file(RENAME ${to}/${name} ${aside}/${name})
        endif()
    endforeach()
    message("What an earlier version kept in ${to} is in ${aside} now. To go on with it, move that folder to "
            "\$XDG_DATA_HOME/tessaloom4, or ~/.local/share/tessaloom4.")
endfunction()

if(CMAKE_SCRIPT_MODE_FILE STREQUAL CMAKE_CURRENT_LIST_FILE)
    bring(${FROM} ${TO})
    foreach(program IN LISTS PROGRAMS)
        get_filename_component(name ${program} NAME)
        bring_file(${program} ${TO}/${name} OWNER_EXECUTE GROUP_EXECUTE WORLD_EXECUTE)
    endforeach()
endif()
