# Completion of nuvexupdate for bash.

_nuvexupdate() {
  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
  local commands="list check update resume history"
  local cameras="--cameras --reset-cameras --speed --no-simulation --network --camera-address --language --json
    --help"
  local series="--parallel --canary --max-failures --dry-run --yes --require-signature"
  local selection="--camera --model --all --allow-downgrade --allow-reinstall"
  COMPREPLY=()
  case $previous in
    --language)
      mapfile -t COMPREPLY < <(compgen -W "en ko ja zh" -- "$current")
      return
      ;;
    --cameras)
      mapfile -t COMPREPLY < <(compgen -f -X '!*.json' -- "$current"; compgen -d -S / -- "$current")
      compopt -o nospace -o filenames 2> /dev/null
      return
      ;;
    --speed | --camera-address | --camera | --model | --parallel | --canary | --max-failures)
      return
      ;;
  esac
  local word command=
  for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
    [[ " $commands " != *" $word "* ]] || { command=$word && break; }
  done
  local words
  case $command in
    "") words="$commands --version $cameras" ;;
    update) words="$cameras $series $selection" ;;
    resume) words="$cameras $series" ;;
    check) words="$cameras --require-signature" ;;
    history) words="--csv $cameras" ;;
    *) words=$cameras ;;
  esac
  mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
  if [[ $command == @(check|update) && $current != -* ]]; then
    mapfile -t COMPREPLY < <(compgen -f -X '!*.guf' -- "$current"; compgen -d -S / -- "$current")
    compopt -o nospace -o filenames 2> /dev/null
  fi
}

complete -F _nuvexupdate nuvexupdate
