# Completion of folionet-cli for bash.

# Offers the lines of standard input that begin with the word at hand, in whatever case and quoted in whatever way.
_folionet_cli_lines() {
  local line word=${1//\\/} quote=""
  [[ $word != [\"\']* ]] || quote=${word:0:1} word=${word:1}
  while IFS= read -r line; do
    [[ ${line,,} == "${word,,}"* ]] || continue
    [[ $quote ]] || line=$(printf %q "$line")
    COMPREPLY+=("$line")
  done
}

# The titles and codes of books.
_folionet_cli_books() { folionet-cli "$@" list books 2> /dev/null | cut -f 2,3 | tr '\t' '\n'; }

_folionet_cli() {
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} command="" folders=() first i at
  # bash takes "--set=x" for three words.
  [[ $word != = ]] || word=""
  [[ $before != = ]] || before=${COMP_WORDS[COMP_CWORD - 2]}
  for ((i = 1; i < COMP_CWORD; ++i)); do
    case ${COMP_WORDS[i]} in
      compile | import | list | check | verify) [[ $command ]] || command=${COMP_WORDS[i]} ;;
      --versalia-path | --module-path)
        at=$((i + 1))
        [[ ${COMP_WORDS[at]} != = ]] || ((++at))
        ((at >= COMP_CWORD)) || folders+=("${COMP_WORDS[i]}" "${COMP_WORDS[at]/#\~/$HOME}")
        ;;
    esac
  done
  COMPREPLY=()
  case $before in
    --output | --into | --versalia-path | --module-path | --program-folder)
      compopt -o filenames 2> /dev/null
      mapfile -t COMPREPLY < <(compgen -d -- "$word")
      return
      ;;
    --set)
      compopt -o nospace 2> /dev/null
      _folionet_cli_lines "$word" < <(folionet-cli list settings 2> /dev/null | sed 's/=.*/=/')
      return
      ;;
    --translation)
      _folionet_cli_lines "$word" < <(folionet-cli "${folders[@]}" list translations 2> /dev/null | cut -f 1)
      return
      ;;
    --language-file)
      _folionet_cli_lines "$word" < <(folionet-cli "${folders[@]}" list languages 2> /dev/null)
      return
      ;;
    Charset)
      _folionet_cli_lines "$word" < <(folionet-cli list charsets 2> /dev/null)
      return
      ;;
    Lang)
      _folionet_cli_lines "$word" < <(folionet-cli list codes 2> /dev/null)
      return
      ;;
    --language)
      _folionet_cli_lines "$word" < <(folionet-cli list codes 2> /dev/null | cut -d ' ' -f 1)
      return
      ;;
    --start-book | --end-book)
      _folionet_cli_lines "$word" < <(_folionet_cli_books "${folders[@]}")
      return
      ;;
    --books)
      if [[ $word == *-* ]]; then
        first=${word//[\\\"\']/}
        first=${first%-*}-
        _folionet_cli_lines "$word" < <(_folionet_cli_books "${folders[@]}" | while IFS= read -r i; do echo "$first$i"; done)
      else
        _folionet_cli_lines "$word" < <(printf '%s\n' OT NT Law History Poetry Prophets Gospels Letters
          _folionet_cli_books "${folders[@]}")
      fi
      return
      ;;
    --titles | --settings | --save-settings)
      compopt -o filenames 2> /dev/null
      mapfile -t COMPREPLY < <(compgen -f -- "$word")
      return
      ;;
    --index-address | --sitemap | --index | --name | --stem | --charset)
      return
      ;;
  esac
  local common="--versalia-path --module-path --program-folder --quiet --strict --help"
  case $command in
    compile)
      common+=" --translation --language-file --start-book --end-book --books --output --index-address --set --sitemap"
      common+=" --settings --save-settings --only-chosen --list-changed --dry-run --json"
      ;;
    import)
      common+=" --name --stem --into --titles --charset --language --replace --dry-run --json"
      if [[ $word != -* ]]; then
        compopt -o filenames 2> /dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
        return
      fi
      ;;
    list) common="translations languages books charsets codes settings --settings $common" ;;
    check) common+=" --translation --set --settings --json" ;;
    verify)
      common+=" --index --settings --stale --remove-stale --json"
      if [[ $word != -* ]]; then
        compopt -o filenames 2> /dev/null
        mapfile -t COMPREPLY < <(compgen -d -- "$word")
        return
      fi
      ;;
    *) common="compile import list check verify --version $common" ;;
  esac
  mapfile -t COMPREPLY < <(compgen -W "$common" -- "$word")
}
complete -F _folionet_cli folionet-cli
