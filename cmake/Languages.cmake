# The languages of all programs and plug-ins, in the order of the menu: the code of the catalogues, the
# name as its speakers write it, the code that Qt's own catalogues have, and the font to ask for where no
# desktop names one (empty: any). A new language is a line here and its catalogues.
set(LANGUAGES
  "en|English|en|"
  "ko|한국어|ko|Noto Sans CJK KR"
  "ja|日本語|ja|Noto Sans CJK JP"
  "zh|中文|zh_CN|Noto Sans CJK SC")
set(LANGUAGE_CODES ${LANGUAGES})
list(TRANSFORM LANGUAGE_CODES REPLACE "\\|.*" "")

# Makes the resource file <name>.qrc in the current build folder. It holds the compiled catalogues
# <catalogue>_<code>.qm, which lie there, under <prefix>.
function(write_catalogue_resource name prefix catalogue)
  set(files "")
  foreach(code IN LISTS LANGUAGE_CODES)
    string(APPEND files "    <file>${catalogue}_${code}.qm</file>\n")
  endforeach()
  file(CONFIGURE OUTPUT ${name}.qrc @ONLY CONTENT
    "<RCC>\n  <qresource prefix=\"${prefix}\">\n${files}  </qresource>\n</RCC>\n")
endfunction()
