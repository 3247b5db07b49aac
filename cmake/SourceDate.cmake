# The day of the sources, for whatever bears a date: what is built anew from the same sources comes out the same. A
# SOURCE_DATE_EPOCH of the surroundings goes before; else it is the time of the last commit, or, without git, that of the
# newest of the texts that go along.
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
    set(source_date "")
    if(EXISTS ${CMAKE_SOURCE_DIR}/.git)
        execute_process(COMMAND git -C ${CMAKE_SOURCE_DIR} --git-dir=.git log -1 --format=%ct
                        OUTPUT_VARIABLE source_date OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
    endif()
    if(NOT source_date)
        file(TIMESTAMP ${CMAKE_SOURCE_DIR}/CHANGELOG.md source_date "%s" UTC)
    endif()
    set(ENV{SOURCE_DATE_EPOCH} ${source_date})
endif()
set(SOURCE_DATE $ENV{SOURCE_DATE_EPOCH})
string(TIMESTAMP SOURCE_DAY "%Y-%m-%d" UTC)
string(TIMESTAMP SOURCE_TIME "%a, %d %b %Y %H:%M:%S +0000" UTC)
