# Completion of lcdhost for fish.
set -l commands load cards resolutions screens menu settings
complete -c lcdhost -f
complete -c lcdhost -n "not __fish_seen_subcommand_from $commands" -a "$commands"
complete -c lcdhost -n "__fish_seen_subcommand_from $commands" -a "(__fish_complete_directories)"
complete -c lcdhost -l plugin -r -F -d "The plug-in"
complete -c lcdhost -l language -x -a "en zh_CN" -d "Language of the names"
complete -c lcdhost -l json -d "Write one JSON object"
complete -c lcdhost -l device -x -n "__fish_seen_subcommand_from load screens" -d "The device to be shown"
complete -c lcdhost -l svg -n "__fish_seen_subcommand_from screens" -d "Write a drawing to scale"
complete -c lcdhost -l card -x -n "__fish_seen_subcommand_from resolutions" -d "Model of the card"
complete -c lcdhost -l position -x -n "__fish_seen_subcommand_from resolutions" -d "Position of the connector"
complete -c lcdhost -l interface -x -n "__fish_seen_subcommand_from resolutions" -d "Interface types as a bit mask"
complete -c lcdhost -l user-settings -n "__fish_seen_subcommand_from settings" -d "Show the user's settings too"
complete -c lcdhost -s h -l help -d "Show the help"
complete -c lcdhost -s v -l version -d "Show the version"
