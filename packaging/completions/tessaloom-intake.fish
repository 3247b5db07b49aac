# Completion of tessaloom-intake for fish.
complete -c tessaloom-intake -l list -r -d 'writes a photo list of all photos that can be used'
complete -c tessaloom-intake -l deep -d 'takes the folders inside a folder as well'
complete -c tessaloom-intake -l data -x -a '(__fish_complete_directories)' -d "folder of the user's data"
complete -c tessaloom-intake -l limit -x -a '500M 2G 5G' -d 'room for all copies that are kept'
complete -c tessaloom-intake -s h -l help -d 'prints a summary of the options'
complete -c tessaloom-intake -l version -d 'prints the version'
