# Completion of nuvexviewer, guftool and virtualcamera for bash: the options that --help has, the commands of
# guftool, the word that puts a camera on USB, files.

_nuvexviewer() {
  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} words='' files='*' bus=
  COMPREPLY=()
  case $previous in
    --language) words="en ko ja zh" files= ;;
    --cameras) files='*.json' ;;
    *)
      case ${1##*/}:$COMP_CWORD in
        guftool:1) words="pack sign stamp inspect verify" files= ;;
        guftool:*) files='*.guf' ;;
        virtualcamera:1) words=usb files= ;;
        nuvexviewer:*) files='*.guf' ;;
      esac
      ;;
  esac
  if [[ $current == -* ]]; then
    [ "${1##*/}:${COMP_WORDS[1]}" != virtualcamera:usb ] || bus=usb
    words=$(LC_ALL=C "$1" $bus --help 2> /dev/null | grep --only-matching --extended-regexp -e '--[a-z][a-z-]*')
    files=
  fi
  [ -z "$words" ] || mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
  if [ -n "$files" ]; then
    mapfile -t COMPREPLY < <(compgen -f -X "!$files" -- "$current"; compgen -d -- "$current")
    compopt -o filenames 2> /dev/null
  fi
}

complete -F _nuvexviewer nuvexviewer guftool virtualcamera
