# shellcheck shell=bash
# Completion of quiralto-cli for bash.

_quiralto_cli() {
    local word=${COMP_WORDS[COMP_CWORD]} option=${COMP_WORDS[COMP_CWORD - 1]} text
    # "=" is a word of its own there.
    if [ "$word" = = ]; then
        word=
    elif [ "$option" = = ]; then
        option=${COMP_WORDS[COMP_CWORD - 2]}
    fi
    COMPREPLY=()
    case $option in
    --orden)
        local quote=${word:0:1} typed=${word//\\/}
        typed=${typed#[\"\']}
        while IFS= read -r text; do
            [[ $text == "$typed"* ]] || continue
            [[ $quote == [\"\'] ]] || text=${text// /\\ }
            COMPREPLY+=("$text")
        done < <("${COMP_WORDS[0]}" --listar 2>/dev/null)
        return
        ;;
    --cifras)
        mapfile -t COMPREPLY < <(compgen -W '0 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15' -- "$word")
        return
        ;;
    --sintaxis | --evaluar | --derivar | --programa | --muestrear | --tabla | --puntos | --[xy]m*)
        return
        ;;
    esac
    if [[ $word == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W '--orden --resultado --json --sintaxis --evaluar
            --derivar --pasos --programa --muestrear --tabla --xmín --xmáx --ymín --ymáx --xmin
            --xmax --ymin --ymax --puntos --cifras --listar --largo --ayuda --version -h -V' -- "$word")
    else
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
        compopt -o filenames 2>/dev/null
    fi
}

complete -F _quiralto_cli quiralto-cli
