# Completion of tessaloom-pack for fish. What it offers of the data folder is found as tessaloom-batch.fish finds it.
functions -q __tessaloom_data
or source (status dirname)/tessaloom-batch.fish

complete -c tessaloom-pack -l data -x -a '(__fish_complete_directories)' -d "folder of the user's data"
complete -c tessaloom-pack -l design -x -a '(__tessaloom_designs own)' -d "designs of one's own"
complete -c tessaloom-pack -l frame -x -a '(__tessaloom_frame_sets)' -d 'frame sets'
complete -c tessaloom-pack -l icon -x -a '(__tessaloom_icons)' -d 'icons of the list'
complete -c tessaloom-pack -l title -x -d 'what the import calls the package'
complete -c tessaloom-pack -l out -r -d 'where the package goes'
complete -c tessaloom-pack -l check -r -d 'tells every problem of a package'
complete -c tessaloom-pack -l help -d 'prints a summary of the options'
complete -c tessaloom-pack -l version -d 'prints the version'
