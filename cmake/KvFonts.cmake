# The two built-in fixed-pitch fonts. No font file is kept in the repository: each comes from the build machine's
# packages, and is one that may be passed on with the program, whatever the resource is called. Without it the resource is
# left out and the program falls back to the system's fixed-pitch font.
#
# kv_add_fonts(target): embeds what was found under ":/fonts/".

set(KV_FONT_FOLDERS /usr/share/fonts /usr/local/share/fonts "$ENV{HOME}/.fonts" "$ENV{HOME}/.local/share/fonts"
    /Library/Fonts /System/Library/Fonts "C:/Windows/Fonts"
    CACHE STRING "Folders that are searched for the built-in fonts")

function(_kv_find_font out)
  set(found "")
  foreach(name ${ARGN})
    foreach(folder ${KV_FONT_FOLDERS})
      file(GLOB_RECURSE hits "${folder}/${name}")
      if(hits)
        list(GET hits 0 found)
        break()
      endif()
    endforeach()
    if(found)
      break()
    endif()
  endforeach()
  set(${out} "${found}" PARENT_SCOPE)
endfunction()

function(kv_add_fonts target)
  _kv_find_font(droid DroidSansMono.ttf NotoMono-Regular.ttf)
  _kv_find_font(monaco Hack-Regular.ttf)
  set(files "")
  foreach(pair "DroidSansMono.ttf|${droid}" "Monaco.ttf|${monaco}")
    string(REPLACE "|" ";" pair "${pair}")
    list(GET pair 0 alias)
    list(LENGTH pair parts)
    if(parts LESS 2)
      message(STATUS "Built-in font ${alias}: not installed, left out")
      continue()
    endif()
    list(GET pair 1 path)
    message(STATUS "Built-in font ${alias}: ${path}")
    set_source_files_properties("${path}" PROPERTIES QT_RESOURCE_ALIAS "${alias}")
    list(APPEND files "${path}")
  endforeach()
  if(files)
    qt_add_resources(${target} kv_fonts PREFIX "/fonts" FILES ${files})
  endif()
endfunction()
