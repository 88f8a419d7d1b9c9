# The Windows build, cross-compiled with mingw-w64 (cmake/mingw-w64-x86_64.cmake)
# and tested under Wine: a program directory that runs as it is, the word
# lists packed by a jeer built for the build machine, the GoogleTest suites
# run through a Wine wrapper, and the zip a Windows user unpacks.

# Everything statically linked: the programs import system DLLs only. A
# release carries no symbols.
add_link_options(-static -static-libgcc -static-libstdc++ $<$<CONFIG:Release,MinSizeRel>:-s>)

# The program directory is what the zip holds, so it lies apart from the
# build's own files.
set(JEERBOX_PROGRAM_DIR ${PROJECT_BINARY_DIR}/Jeerbox)
set(JEERBOX_PACKAGE_NAME Jeerbox-${PROJECT_VERSION}-win64)

# --- Wine: one prefix per build tree, made on first use by the wrapper. ---
set(JEERBOX_WINE_DIR ${PROJECT_BINARY_DIR}/wine)
set(JEERBOX_WINE_RUN ${PROJECT_BINARY_DIR}/wine-run)
configure_file(${PROJECT_SOURCE_DIR}/scripts/wine-run.sh.in ${JEERBOX_WINE_RUN}
               FILE_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
                                WORLD_READ WORLD_EXECUTE
               @ONLY)
set(CMAKE_CROSSCOMPILING_EMULATOR ${JEERBOX_WINE_RUN})

# --- CLI11 is header-only; its Debian package points at /usr/include, which
# must not come before the mingw headers. Only its own folder is offered. ---
set(JEERBOX_CLI11_ROOT ${PROJECT_BINARY_DIR}/cli11)
file(MAKE_DIRECTORY ${JEERBOX_CLI11_ROOT}/include)
file(CREATE_LINK /usr/include/CLI ${JEERBOX_CLI11_ROOT}/include/CLI SYMBOLIC)
file(WRITE ${JEERBOX_CLI11_ROOT}/CLI11Config.cmake
     "add_library(CLI11::CLI11 INTERFACE IMPORTED)\n"
     "set_target_properties(CLI11::CLI11 PROPERTIES INTERFACE_INCLUDE_DIRECTORIES ${JEERBOX_CLI11_ROOT}/include)\n")
set(CLI11_DIR ${JEERBOX_CLI11_ROOT} CACHE PATH "CLI11 for the cross build" FORCE)

# --- The word lists are packed by jeer for the build machine: the one given
# in JEERBOX_HOST_JEER (make test passes the default build's), or a small
# build of jeer alone made here. It also prints the sentences jeer.exe's are
# compared with. ---
set(JEERBOX_HOST_JEER "" CACHE FILEPATH "jeer built for the build machine; empty: build one here")
if(JEERBOX_HOST_JEER)
  add_custom_target(jeer_host)
else()
  include(ExternalProject)
  include(ProcessorCount)
  ProcessorCount(_jobs)
  if(NOT _jobs)
    set(_jobs 1)
  endif()
  set(_host_dir ${PROJECT_BINARY_DIR}/host-jeer)
  ExternalProject_Add(jeer_host
    SOURCE_DIR ${PROJECT_SOURCE_DIR}
    BINARY_DIR ${_host_dir}
    CMAKE_ARGS -DCMAKE_BUILD_TYPE=Release -DJEERBOX_BUILD_GUI=OFF -DJEERBOX_BUILD_TESTS=OFF
               -DJEERBOX_BUILD_BENCH=OFF
    BUILD_COMMAND ${CMAKE_COMMAND} --build ${_host_dir} --target jeer -j ${_jobs}
    INSTALL_COMMAND ""
    BUILD_BYPRODUCTS ${_host_dir}/jeer
    BUILD_ALWAYS TRUE
    USES_TERMINAL_BUILD TRUE)
  set(JEERBOX_HOST_JEER ${_host_dir}/jeer)
endif()
set(JEERBOX_WORD_PACKER ${JEERBOX_HOST_JEER})
set(JEERBOX_WORD_PACKER_TARGET jeer_host)

# --- The zip a Windows user unpacks: the program directory as it is. ---
add_custom_target(windows_zip
  COMMAND ${CMAKE_COMMAND} -E rm -f ${JEERBOX_PACKAGE_NAME}.zip
  COMMAND ${CMAKE_COMMAND} -E tar cf ${JEERBOX_PACKAGE_NAME}.zip --format=zip Jeerbox
  WORKING_DIRECTORY ${PROJECT_BINARY_DIR}
  BYPRODUCTS ${PROJECT_BINARY_DIR}/${JEERBOX_PACKAGE_NAME}.zip
  COMMENT "${JEERBOX_PACKAGE_NAME}.zip"
  VERBATIM)
add_dependencies(windows_zip jeer jeerbox jeerbox_words jeerbox_sound_data)
