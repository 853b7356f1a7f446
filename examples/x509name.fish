# Completion of x509name for fish; the program says what there is.

function __x509name_complete
    set -l words (commandline -opc)
    set -l current (commandline -ct)
    for line in (x509name --complete $words[2..-1] "$current" 2>/dev/null)
        if test "$line" = :files
            __fish_complete_path "$current"
        else
            echo $line
        end
    end
end

complete -c x509name -f -a '(__x509name_complete)'
