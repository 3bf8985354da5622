# bash completion for borvik-calc

# The names of tables or diagrams, as the program lists them when it is given an unknown one.
_borvik_calc_names() {
    borvik-calc --default "$@" 2>&1 | sed -n 's/.*one of //p' | tr -d ,
}

_borvik_calc() {
    local current=$2 previous=$3
    case $previous in
        --table) mapfile -t COMPREPLY < <(compgen -W "$(_borvik_calc_names --table '?')" -- "$current") ;;
        --diagram) mapfile -t COMPREPLY < <(compgen -W "$(_borvik_calc_names --png - --diagram '?')" -- "$current") ;;
        --decimal) mapfile -t COMPREPLY < <(compgen -W "point comma" -- "$current") ;;
        --walk) mapfile -t COMPREPLY < <(compgen -W "plain fast" -- "$current") ;;
        --paper) mapfile -t COMPREPLY < <(compgen -W "a4 letter" -- "$current") ;;
        --scope) mapfile -t COMPREPLY < <(compgen -W "uls uls-sls all compressed" -- "$current") ;;
        --tables) mapfile -t COMPREPLY < <(compgen -d -- "$current") ;;
        --crane-loads | --csv | --workbook | --from-json | --json | --png | --reactions-csv | --reactions-xlsx | --report | --logo | --xlsx | --save) mapfile -t COMPREPLY < <(compgen -f -- "$current") ;;
        --fail-above) COMPREPLY=(1.0) ;;
        *)
            if [[ $current == -* ]]; then
                mapfile -t COMPREPLY < <(compgen -W "--at --checked-by --client --crane-loads --csv --date --decimal --default --diagram --fail-above --fingerprint --first-page --from-json --groups --help --json --lateral-supports --logo --neighbour --notes --paper --png --prepared-by --quiet --reactions --reactions-csv --reactions-xlsx --report --revision
                    --save --scope --second-opinion --summary --table --tables --values --version --walk --warping-free --with-loads --with-notes --with-opinion --with-positions --with-reactions --with-values --workbook --xlsx" -- "$current")
            else
                mapfile -t COMPREPLY < <(compgen -f -X '!*.brvk' -- "$current"; compgen -d -- "$current")
            fi
            ;;
    esac
}

complete -o filenames -F _borvik_calc borvik-calc
