# The Windows build's tests, run under Wine through the build's emulator.
# Each suite is one executable run whole: a Wine process per case would cost
# more than the cases themselves.
add_subdirectory(helpers)

# Test code is compiled for speed of building: unoptimised, and the test
# files of a folder in one compiler run. Apart stay those of tests/app
# (each names a MainForm of its own) and of the Windows units (windows.h
# would turn names of the seams into macros).
function(jeerbox_windows_suite target)
  target_compile_options(${target} PRIVATE -O0)
  set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
  get_target_property(sources ${target} SOURCES)
  foreach(source IN LISTS sources)
    get_filename_component(folder ${source} DIRECTORY)
    if(NOT folder MATCHES "^(app|platform/win32)$")
      set_source_files_properties(${source} PROPERTIES UNITY_GROUP "${folder}")
    endif()
  endforeach()
endfunction()

# The shared code's own suites, as they stand for Linux.
add_executable(core_tests
  support/support_test.cpp
  support/settings_test.cpp
  text/text_store_test.cpp
  text/line_list_test.cpp
  text/token_expansion_test.cpp
  compose/insult_composer_test.cpp
  sound/sound_test.cpp
  app/program_flow_test.cpp
)
target_link_libraries(core_tests PRIVATE jeerbox_test_helpers jeerbox_flow)
jeerbox_windows_suite(core_tests)
add_test(NAME core_tests COMMAND core_tests)

# Under Wine the build tree lies on drive Z:, and cmd.exe wants backslashes.
function(jeerbox_wine_path out path)
  string(REPLACE "/" "\\\\" windows "Z:${path}")
  set(${out} "${windows}" PARENT_SCOPE)
endfunction()

# The Windows units, and jeer.exe driven by the tests that drive jeer.
jeerbox_wine_path(jeer_exe ${JEERBOX_PROGRAM_DIR}/jeer.exe)
jeerbox_wine_path(media_dir ${PROJECT_SOURCE_DIR}/data/media)
jeerbox_wine_path(jeerbox_exe ${JEERBOX_PROGRAM_DIR}/jeerbox.exe)
# (The shipped word lists and the escapes are the same on every host: their
# tests run on Linux only.)
add_executable(win32_tests
  app/win32/resources_test.cpp
  platform/win32/audio_control_xaudio2_test.cpp
  platform/win32/win32_units_test.cpp
  platform/win32/file_system_win32_test.cpp
  platform/win32/profile_win32_test.cpp
  cli/jeer_command_test.cpp
  cli/pack_test.cpp
  cli/check_test.cpp
)
target_compile_definitions(win32_tests PRIVATE JEER_PATH="${jeer_exe}" JEERBOX_MEDIA_DIR="${media_dir}"
                                               JEERBOX_EXE=L"${jeerbox_exe}")
target_link_libraries(win32_tests PRIVATE jeerbox_test_helpers jeer_tools jeerbox_win32_app)
jeerbox_windows_suite(win32_tests)
add_dependencies(win32_tests jeer jeerbox)
# The clipboard is the session's, shared with the end-to-end test: the
# clipboard cases run on their own, and everything else beside that test.
add_test(NAME win32_tests COMMAND win32_tests --gtest_filter=-Win32Clipboard.*)
add_test(NAME win32_clipboard COMMAND win32_tests --gtest_filter=Win32Clipboard.*)
set_tests_properties(win32_clipboard PROPERTIES RESOURCE_LOCK wine_clipboard)

# The real jeerbox.exe on the Wine session's X server, read back through a
# probe that asks Windows about its window.
add_executable(window_probe app/win32/window_probe.cpp)
add_test(NAME app_end_to_end
  COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/app/win32/e2e_test.sh ${JEERBOX_WINE_RUN} ${JEERBOX_PROGRAM_DIR}
          $<TARGET_FILE:window_probe> "${JEERBOX_PRODUCT_DOMAIN}" "${JEERBOX_SPONSOR_URL}")
set_tests_properties(app_end_to_end PROPERTIES TIMEOUT 180 RESOURCE_LOCK wine_clipboard)

add_test(NAME jeer_same_sentences
  COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/cli/same_sentences_test.sh ${JEERBOX_WINE_RUN} $<TARGET_FILE:jeer>
          ${JEERBOX_HOST_JEER} ${JEERBOX_PROGRAM_DIR})
