# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT

# The words before the one that is typed, without options and their values: the command first.
function __lorvactl_words
    set -l skips no
    set -l hasOptions yes
    for word in (commandline -opc)[2..-1]
        if test $skips = yes
            set skips no
            continue
        else if test $hasOptions = no
            echo -- $word
            continue
        end
        switch $word
            case --
                set hasOptions no
            case '--*=*' --json --missing --hidden --original --dry-run --replace --csv --glyphs --help
            case -
                echo -- $word
            case '-*'
                set skips yes
            case '*'
                echo -- $word
        end
    end
end

# The command is one of these.
function __lorvactl_command
    set -l words (__lorvactl_words)
    contains -- "$words[1]" $argv
end

# COMMANDS -- VERBS: the command is one of these with one of these verbs.
function __lorvactl_verb
    set -l words (__lorvactl_words)
    set -l end (contains -i -- -- $argv)
    test (count $words) -ge 2
    and contains -- $words[1] $argv[1..(math $end - 1)]
    and contains -- $words[2] $argv[(math $end + 1)..-1]
end

# So many words, the command counted, stand before the one that is typed.
function __lorvactl_count
    test (count (__lorvactl_words)) = $argv[1]
end

function __lorvactl_members_follow
    test (count (__lorvactl_words)) -ge 3
end

# Names of the library. Nothing where lorvactl fails, or where fonts lie on a volume that does not answer
# in time.
function __lorvactl_names
    timeout 2 lorvactl $argv 2>/dev/null </dev/null | string split -f 1 \t
end

function __lorvactl_members_of_group
    set -l words (__lorvactl_words)
    __lorvactl_names $words[1] list -- $words[3]
end

function __lorvactl_fonts
    complete -C '__fish_command_without_completions '(commandline -ct) |
        string match -ri '^[^\t]*(?:/|\.(?:otf|ttf|ttc|otc|dfont))(?=\t|$)'
end

# A word with a slash is a file; every other one is a family, but for those whose state is like the pattern.
function __lorvactl_subjects
    if string match -q '*/*' -- (commandline -ct)
        __lorvactl_fonts
    else if set -q argv[1]
        timeout 2 lorvactl status 2>/dev/null </dev/null | string match -rv "\t$argv[1]\$" | string split -f 1 \t
    else
        __lorvactl_names list
    end
end

complete -c lorvactl -f
complete -c lorvactl -s h -l help -d 'Show help'
complete -c lorvactl -n '__lorvactl_count 0' -l version -d 'Show the version'

for command in \
        'list:List the font families of this machine' \
        'search:List those that a search finds' \
        'scan:Read the fonts that changed' \
        'info:Show what a font file says about its faces' \
        'specimen:Draw text in a font' \
        'thumbnail:Draw the small picture that file managers show' \
        'collections:List, make and change collections' \
        'styles:List, make and change styles' \
        'foundries:List and correct the foundries' \
        'export:Write all of that to a file' \
        'import:Take it in from such a file' \
        'activate:Make fonts available to every program' \
        'deactivate:Withdraw them again' \
        'status:Tell what is active, and how' \
        'folders:List, add and remove watched folders' \
        'history:Tell what was switched on and off, and when' \
        'doctor:Tell how preferences, caches and activation fare' \
        'report:Write what a report of a fault needs' \
        'updates:Ask whether there is a newer release of Lorva'
    set -l parts (string split -m 1 : $command)
    complete -c lorvactl -n '__lorvactl_count 0' -a $parts[1] -d $parts[2]
end

# Verbs and whom they are about
set -l groupings collections styles foundries
for verb in 'list:List them, or the families of one' 'rename:Give it another name' 'delete:Delete it' \
        'add:Put families into it' 'remove:Take families out of it' 'set:Make these families its members'
    set -l parts (string split -m 1 : $verb)
    complete -c lorvactl -n "__lorvactl_command $groupings; and __lorvactl_count 1" -a $parts[1] -d $parts[2]
end
complete -c lorvactl -n '__lorvactl_command collections styles; and __lorvactl_count 1' -a create -d 'Make a new one'
complete -c lorvactl -n '__lorvactl_command foundries; and __lorvactl_count 1' -a hide -d 'Hide it'
complete -c lorvactl -n '__lorvactl_command foundries; and __lorvactl_count 1' -a show -d 'Bring it back'
complete -c lorvactl -n '__lorvactl_command foundries; and __lorvactl_count 1' -a reset \
    -d 'Let the fonts of families say it again'
for grouping in $groupings
    complete -c lorvactl -n "__lorvactl_verb $grouping -- list rename delete hide add remove set
        and __lorvactl_count 2" -a "(__lorvactl_names $grouping)"
end
complete -c lorvactl -n '__lorvactl_verb foundries -- show; and __lorvactl_count 2' \
    -a '(__lorvactl_names foundries list --hidden)'
complete -c lorvactl -n '__lorvactl_verb foundries -- reset' -a '(__lorvactl_names list)'
complete -c lorvactl -n "__lorvactl_verb $groupings -- create add set; and __lorvactl_members_follow" \
    -a '(__lorvactl_names list)'
complete -c lorvactl -n "__lorvactl_verb $groupings -- remove; and __lorvactl_members_follow" \
    -a '(__lorvactl_members_of_group)'
complete -c lorvactl -n '__lorvactl_command folders; and __lorvactl_count 1' -a list -d 'List the watched folders'
complete -c lorvactl -n '__lorvactl_command folders; and __lorvactl_count 1' -a add -d 'Watch folders'
complete -c lorvactl -n '__lorvactl_command folders; and __lorvactl_count 1' -a remove -d 'End that'
complete -c lorvactl -n '__lorvactl_verb folders -- add' -a '(__fish_complete_directories)'
complete -c lorvactl -n '__lorvactl_verb folders -- remove' -a '(__lorvactl_names folders)'

# Files, families
complete -c lorvactl -n '__lorvactl_command info specimen thumbnail; and __lorvactl_count 1' -a '(__lorvactl_fonts)'
complete -c lorvactl -n '__lorvactl_command thumbnail; and __lorvactl_count 2' -a '(__fish_complete_suffix .png)'
complete -c lorvactl -n '__lorvactl_command import; and __lorvactl_count 1' -a '(__fish_complete_suffix .json)'
complete -c lorvactl -n '__lorvactl_command activate' -a '(__lorvactl_subjects "active .*")'
complete -c lorvactl -n '__lorvactl_command deactivate' -a '(__lorvactl_subjects "(inactive|active \(system\))")'
complete -c lorvactl -n '__lorvactl_command status' -a '(__lorvactl_subjects)'

# Options
complete -c lorvactl -l json -d 'JSON instead of lines' -n '__lorvactl_command list search scan info collections \
    styles foundries activate deactivate status folders history doctor report updates'
complete -c lorvactl -l folder -d 'Take in the fonts below a folder too' -xa '(__fish_complete_directories)' \
    -n '__lorvactl_command list search scan collections styles foundries activate deactivate status'
complete -c lorvactl -n '__lorvactl_command list' -l script -d 'Families that can set a script' \
    -xa 'latin japanese korean simplifiedChinese traditionalChinese'
complete -c lorvactl -n '__lorvactl_command info' -l glyphs -d 'List every glyph'
complete -c lorvactl -n '__lorvactl_command specimen' -s o -d 'The picture to write' -r \
    -a '(__fish_complete_suffix .png)'
complete -c lorvactl -n '__lorvactl_command specimen' -l text -d 'What to draw' -x
complete -c lorvactl -n '__lorvactl_command specimen thumbnail' -l face -d 'Which face of a collection, from 0' -x
complete -c lorvactl -n '__lorvactl_command specimen' -l instance -d 'A named instance of a variable face' -x
complete -c lorvactl -n '__lorvactl_command specimen' -l variations -d 'Values of axes: wght=650,wdth=80' -x
complete -c lorvactl -n '__lorvactl_command specimen' -l features -d 'OpenType features: smcp,onum=0' -x
complete -c lorvactl -n '__lorvactl_command specimen' -l palette -d 'Which palette of a colour font, from 0' -x
complete -c lorvactl -n '__lorvactl_command specimen' -l language -d 'For forms of a language: ja, zh-Hant' -x
complete -c lorvactl -n '__lorvactl_command specimen' -l direction -d 'Of the text' -xa 'ltr rtl auto'
complete -c lorvactl -n '__lorvactl_command specimen' -l letter-spacing -d 'Pixels after each letter' -x
complete -c lorvactl -n '__lorvactl_command specimen' -l size -d 'Pixels per em' -x
complete -c lorvactl -n '__lorvactl_command specimen' -l width -d 'Of the picture, in pixels' -x
complete -c lorvactl -n '__lorvactl_command specimen' -l height -d 'Of the picture, in pixels' -x
complete -c lorvactl -n '__lorvactl_command specimen' -l color -d 'Of the text: #RRGGBB' -x
complete -c lorvactl -n '__lorvactl_command specimen' -l background -d 'Of the picture: #RRGGBB' -xa transparent
complete -c lorvactl -n '__lorvactl_command thumbnail' -l size -d 'Pixels of the square it fits' -x
complete -c lorvactl -n '__lorvactl_command collections styles foundries' -l missing \
    -d 'Take names of families that this machine lacks'
complete -c lorvactl -n '__lorvactl_command foundries' -l hidden -d 'List the foundries that are hidden'
complete -c lorvactl -n '__lorvactl_command foundries' -l original -d 'The name that the fonts give'
complete -c lorvactl -n '__lorvactl_command export' -s o -d 'The file to write' -r \
    -a '(__fish_complete_suffix .json)'
complete -c lorvactl -n '__lorvactl_command import' -l replace -d 'Make all what the file says'
complete -c lorvactl -n '__lorvactl_command import activate deactivate' -l dry-run -d 'Only tell what would be done'
complete -c lorvactl -n '__lorvactl_command activate' -l method -d How -xa 'copy register'
complete -c lorvactl -n '__lorvactl_command deactivate' -l to -d 'Move the copies to a folder' \
    -xa '(__fish_complete_directories)'
complete -c lorvactl -n '__lorvactl_command activate deactivate status' -l collection \
    -d 'The families of a collection' -xa '(__lorvactl_names collections)'
complete -c lorvactl -n '__lorvactl_command history' -l limit -d 'Only the newest' -x
complete -c lorvactl -n '__lorvactl_command history' -l csv -d 'A table for spreadsheets'
complete -c lorvactl -n '__lorvactl_command updates' -l feed -d 'Ask there instead' -x
complete -c lorvactl -n '__lorvactl_command updates' -l key -d 'The key of the feed' -x
