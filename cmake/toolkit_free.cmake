# Keeps the shared code free of any window toolkit or host library: the
# core and the program flow must build for every host. Checked when CMake
# configures, so a stray link or include fails the build at once.

set(JEERBOX_TOOLKIT_PATTERN
    "^(Qt6::|SDL2|CURL::|jeerbox_(qt|sdl|curl|win32_app|window_qt|window_win32)$|(user32|gdi32|comctl32|shell32|wininet|winmm|ole32|mfplat|mfreadwrite|mfuuid)$)")
set(JEERBOX_TOOLKIT_INCLUDE_PATTERN "#include[ \t]*[<\"](Q[A-Za-z]+|SDL[A-Za-z_0-9]*\\.h|curl/|windows\\.h|platform/(qt|sdl|curl|win32|posix)/)")

# Every library `target` links, directly or not.
function(_jeerbox_link_closure target out)
  set(seen ${${out}})
  foreach(property LINK_LIBRARIES INTERFACE_LINK_LIBRARIES)
    get_target_property(libs ${target} ${property})
    if(NOT libs)
      continue()
    endif()
    foreach(lib IN LISTS libs)
      if(lib IN_LIST seen)
        continue()
      endif()
      list(APPEND seen ${lib})
      if(TARGET ${lib})
        _jeerbox_link_closure(${lib} seen)
      endif()
    endforeach()
  endforeach()
  set(${out} ${seen} PARENT_SCOPE)
endfunction()

function(_jeerbox_check_toolkit_free target)
  set(closure "")
  _jeerbox_link_closure(${target} closure)
  foreach(lib IN LISTS closure)
    if(lib MATCHES "${JEERBOX_TOOLKIT_PATTERN}")
      message(FATAL_ERROR "${target} must not link ${lib}: it is shared by every host")
    endif()
  endforeach()
  get_target_property(sources ${target} SOURCES)
  get_target_property(dir ${target} SOURCE_DIR)
  foreach(source IN LISTS sources)
    get_filename_component(path ${source} ABSOLUTE BASE_DIR ${dir})
    get_filename_component(folder ${path} DIRECTORY)
    file(GLOB headers ${folder}/*.h)
    foreach(file ${path} ${headers})
      file(STRINGS ${file} hits REGEX "${JEERBOX_TOOLKIT_INCLUDE_PATTERN}")
      if(hits)
        message(FATAL_ERROR "${file} is shared by every host but includes: ${hits}")
      endif()
    endforeach()
  endforeach()
endfunction()

# Checked once everything is defined, since links may be added later.
function(jeerbox_assert_toolkit_free target)
  # A deferred call expands its arguments late: bake the name in now.
  cmake_language(EVAL CODE
    "cmake_language(DEFER DIRECTORY [[${PROJECT_SOURCE_DIR}]] CALL _jeerbox_check_toolkit_free [[${target}]])")
endfunction()

# The seams themselves: plain C++ only.
file(GLOB _jeerbox_seams ${PROJECT_SOURCE_DIR}/src/platform/*.h)
foreach(seam IN LISTS _jeerbox_seams)
  file(STRINGS ${seam} hits REGEX "${JEERBOX_TOOLKIT_INCLUDE_PATTERN}")
  if(hits)
    message(FATAL_ERROR "${seam} is a seam but includes: ${hits}")
  endif()
endforeach()
