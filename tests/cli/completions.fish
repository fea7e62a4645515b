# Prints what fish offers at the end of the line "$argv[2]" with the completion in the folder "$argv[1]".
source $argv[1]/mirrix-cli.fish
complete -C "$argv[2]" | string replace -r '\t.*' '' | string replace -r '^--.*=(?=.)' ''
