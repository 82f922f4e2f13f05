# Completion of folionet-cli for bash.
_folionet_cli() {
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} command="" i
  for ((i = 1; i < COMP_CWORD; ++i)); do
    case ${COMP_WORDS[i]} in
      compile | list | check | verify) command=${COMP_WORDS[i]} && break ;;
    esac
  done
  COMPREPLY=()
  case $before in
    --output | --versalia-path | --module-path | --program-folder)
      mapfile -t COMPREPLY < <(compgen -d -- "$word")
      return
      ;;
    --set)
      mapfile -t COMPREPLY < <(compgen -W "$(folionet-cli list settings 2> /dev/null | sed 's/=.*/=/')" -- "$word")
      return
      ;;
    --translation)
      mapfile -t COMPREPLY < <(compgen -W "$(folionet-cli list translations 2> /dev/null | cut -f 1)" -- "$word")
      return
      ;;
    --language-file)
      mapfile -t COMPREPLY < <(compgen -W "$(folionet-cli list languages 2> /dev/null)" -- "$word")
      return
      ;;
  esac
  local common="--versalia-path --module-path --program-folder --help"
  case $command in
    compile)
      common+=" --translation --language-file --start-book --end-book --output --index-address --set --sitemap"
      common+=" --list-changed --dry-run --quiet"
      ;;
    list) common="translations languages books settings $common" ;;
    check) common+=" --translation --set" ;;
    verify)
      common+=" --index"
      [[ $word == -* ]] || { mapfile -t COMPREPLY < <(compgen -d -- "$word"); return; }
      ;;
    *) common="compile list check verify --version $common" ;;
  esac
  mapfile -t COMPREPLY < <(compgen -W "$common" -- "$word")
}
complete -F _folionet_cli folionet-cli
