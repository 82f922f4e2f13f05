# Completion of folionet for bash.

_folionet() {
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
  # bash takes "--program-folder=x" for three words.
  [[ $word != = ]] || word=""
  [[ $before != = ]] || before=${COMP_WORDS[COMP_CWORD - 2]}
  if [[ $before == --*-path || $before == --*-folder ]]; then
    compopt -o filenames 2> /dev/null
    mapfile -t COMPREPLY < <(compgen -d -- "$word")
  elif [[ $before == --settings || $word != -* ]]; then
    compopt -o filenames 2> /dev/null
    mapfile -t COMPREPLY < <(compgen -f -X '!*.folionet' -- "$word"; compgen -d -- "$word")
  else
    mapfile -t COMPREPLY < <(compgen -W "--versalia-path --module-path --program-folder --settings --help --version" -- "$word")
  fi
}
complete -F _folionet folionet
