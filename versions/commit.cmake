# Writes the commit of SOURCE to the C++ file TO: cmake -D SOURCE=… -D TO=… -P commit.cmake
# From git in a checkout, with "+" behind it where files differ from it; from commit.txt, which git fills in, in an archive
# of the sources; else nothing.
set(commit "")
if(EXISTS ${SOURCE}/.git)
    execute_process(COMMAND git -C ${SOURCE} --git-dir=.git rev-parse --short=12 HEAD
                    OUTPUT_VARIABLE commit OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
    execute_process(COMMAND git -C ${SOURCE} --git-dir=.git status --porcelain --untracked-files=no
                    OUTPUT_VARIABLE differing ERROR_QUIET)
    if(commit AND differing)
        string(APPEND commit "+")
    endif()
else()
    file(STRINGS ${SOURCE}/versions/commit.txt commit LIMIT_COUNT 1)
    if(NOT commit MATCHES "^[0-9a-f]+$")
        set(commit "")
    endif()
    string(SUBSTRING "${commit}" 0 12 commit)
endif()
file(CONFIGURE OUTPUT ${TO} @ONLY CONTENT [[
#include "versions/version.h"

std::string built_from()
{
    return "@commit@";
}
]])
