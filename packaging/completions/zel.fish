# Completion of zel for fish. The table is made from the program's own help.

# The first column of a list that the program prints; looking makes no data file.
function __zel_column
    test -e "$HOME/Library/Application Support/ZELMac/ZEL.xml"; or return
    set -l zel (commandline -opc)[1]
    $zel $argv 2>/dev/null </dev/null | string match -r -g '^([^",]+),' | tail -n +2
end

# Several keys with commas between them; those before the last comma stay.
function __zel_keys
    set -l before (commandline -ct | string match -r '^.*,')
    printf '%s\n' "$before"$argv
end

# Whether the command is typed and none of its own words, or one that wants a value.
function __zel_wants -a command word
    set -l typed (commandline -opc)[2..]
    set -l words (string match -v -- '-*' $typed)
    test "$words[1]" = "$command"; or return
    test -z "$word" -a (count $words) -eq 1; or test -n "$word" -a "$words[2]" = "$word" -a (count $words) -eq 2
end

# NAME VALUE CHOICES: what complete is told about a value.
function __zel_value -a name value choices
    switch "$name $value"
        case '* KEY=*'
            printf '%s\n' -x -a (string replace -a -r '(\S+)' '$1=' -- $choices)
        case '* KEY*,*'
            printf '%s\n' -x -a "(__zel_keys $choices)"
        case '--patient *' '--send-id *'
            printf '%s\n' -x -a '(__zel_column patients)'
        case 'restore NAME'
            printf '%s\n' -x -a '(__zel_column backup list)'
        case '* FILE*'
            printf '%s\n' -r -F
        case '*=FILE*'
            printf '%s\n' -F
        case '* DIR'
            printf '%s\n' -x -a '(__fish_complete_directories)'
        case '* -'
        case '*'
            printf '%s\n' -x
            test "$choices" = -; or printf '%s\n' -a $choices
    end
end

complete -c zel -f
for row in (string split \n -- '
@TABLE@
')
    set -l cells (string split \t -- $row)
    set -l seen "__fish_seen_subcommand_from $cells[2]"
    test "$cells[2]" = -; and set seen __fish_use_subcommand
    set -l value (__zel_value $cells[3..5])
    switch $cells[1]
        case command
            complete -c zel -n __fish_use_subcommand -a $cells[2] -d $cells[6]
        case option
            complete -c zel -n $seen -l (string sub -s 3 -- $cells[3]) $value -d $cells[6]
        case word
            if test $cells[3] = -
                complete -c zel -n $seen $value
            else
                complete -c zel -n "__zel_wants $cells[2]" -a $cells[3]
                test $cells[4] = -; or complete -c zel -n "__zel_wants $cells[2] $cells[3]" $value
            end
    end
end
functions -e __zel_value
