# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT

# Names of the library. Nothing where lorvactl fails, or where fonts lie on a volume that does not answer
# in time.
function __lorva_names
    timeout 2 lorvactl $argv 2>/dev/null </dev/null | string split -f 1 \t
end

function __lorva_ids
    timeout 2 lorvactl $argv --json 2>/dev/null </dev/null | string match -ar '(?<=\{"id":")[^"]*'
end

# Rows of the sidebar.
function __lorva_sources
    printf '%s\n' all active inactive discover
    printf 'style:%s\n' (__lorva_ids styles)
    printf 'collection:%s\n' (__lorva_names collections)
    printf 'foundry:%s\n' (__lorva_ids foundries)
end

function __lorva_fonts
    complete -C '__fish_command_without_completions '(commandline -ct) |
        string match -ri '^[^\t]*(?:/|\.(?:otf|ttf|ttc|otc|dfont))(?=\t|$)'
end

complete -c lorva -f
complete -c lorva -a '(__lorva_fonts)'
complete -c lorva -s h -l help -d 'Print a short help'
complete -c lorva -l version -d 'Print the version'
complete -c lorva -l folder -d 'Add the fonts of a folder for this start' -xa '(__fish_complete_directories)'
complete -c lorva -l source -d 'Start in a row of the sidebar' -xa '(__lorva_sources)'
complete -c lorva -l search -d 'Start with a search' -x
complete -c lorva -l select -d 'Start with a family selected' -xa '(__lorva_names list)'
complete -c lorva -l detail -d 'Start with a family opened in depth' -xa '(__lorva_names list)'
complete -c lorva -l stage -d 'How it is shown there' -xa 'text waterfall comparison'
complete -c lorva -l inspector -d 'What is shown beside it' -xa 'features info'
complete -c lorva -l quiz -d 'Start in the font quiz' -xa 'intro playing poster'
complete -c lorva -l welcome -d 'Show the welcome' -xa 'scene card'
complete -c lorva -l no-welcome -d 'Do not show the welcome'
complete -c lorva -l view -d 'Start in this view' -xa 'grid list'
complete -c lorva -l point-size -d 'Size of specimens, in points' -x
complete -c lorva -l weight -d 'Weight of specimens, 100 to 900' -x
complete -c lorva -l color -d 'Colours of the window' -xa 'white black custom image'
complete -c lorva -l image -d 'Background image' \
    -xa 'dusk dawn ember paper lagoon fern blueprint terrazzo ink plum aurora graphite'
complete -c lorva -l logo -d 'Image beside the text' -r -a '(__fish_complete_suffix .svg)'
complete -c lorva -l text -d 'Sample text' -x
complete -c lorva -l appearance -d 'Whatever the desktop is' -xa 'light dark'
complete -c lorva -l screenshot -d 'Write a picture of the window and quit' -r -a '(__fish_complete_suffix .png)'
complete -c lorva -l window-size -d 'Size of that picture, WIDTHxHEIGHT' -x
complete -c lorva -l sheet -d 'Open a sheet for that picture' -xa 'activate deactivate history settings'
