# Install layout and the Debian package. The programs and their files go
# together into one program directory, because they find System/, Media/ and
# UserInfo/ beside their own executable; bin/ only holds relative links to them.
include(GNUInstallDirs)

# Not CMAKE_INSTALL_LIBDIR: on Debian that is lib/<multiarch>, and this is a
# program directory, not a library one.
set(JEERBOX_INSTALL_PROGRAMDIR "lib/jeerbox" CACHE STRING
    "Program directory under the prefix, holding jeerbox, jeer and their files")

set(JEERBOX_PROGRAMS jeer)
if(TARGET jeerbox)
  list(APPEND JEERBOX_PROGRAMS jeerbox)
endif()
install(TARGETS ${JEERBOX_PROGRAMS} RUNTIME DESTINATION ${JEERBOX_INSTALL_PROGRAMDIR})

# The links are made in the build tree and installed as links, so a staged
# install (DESTDIR, CPack) carries them unchanged. They are relative (both
# directories lie under the prefix), so an installed tree can be moved.
if(UNIX)
  file(RELATIVE_PATH JEERBOX_BIN_TO_PROGRAMDIR
       /prefix/${CMAKE_INSTALL_BINDIR} /prefix/${JEERBOX_INSTALL_PROGRAMDIR})
  set(JEERBOX_LINK_DIR ${PROJECT_BINARY_DIR}/install-links)
  file(MAKE_DIRECTORY ${JEERBOX_LINK_DIR})
  foreach(program IN LISTS JEERBOX_PROGRAMS)
    file(CREATE_LINK ${JEERBOX_BIN_TO_PROGRAMDIR}/${program} ${JEERBOX_LINK_DIR}/${program} SYMBOLIC)
    install(FILES ${JEERBOX_LINK_DIR}/${program} DESTINATION ${CMAKE_INSTALL_BINDIR})
  endforeach()
endif()

# The data, named one by one from the sources, so nothing else that happens
# to lie in the build's program directory gets installed.
file(GLOB JEERBOX_INSTALL_WORDS CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/data/words/*.txt)
foreach(source IN LISTS JEERBOX_INSTALL_WORDS)
  get_filename_component(name ${source} NAME)
  string(REGEX REPLACE "\\.txt$" "" packed ${name})
  install(FILES ${JEERBOX_PROGRAM_DIR}/System/${packed} DESTINATION ${JEERBOX_INSTALL_PROGRAMDIR}/System)
endforeach()
file(GLOB JEERBOX_INSTALL_MEDIA CONFIGURE_DEPENDS
     ${PROJECT_SOURCE_DIR}/data/media/*.mp3 ${PROJECT_SOURCE_DIR}/data/media/*.wav)
install(FILES ${JEERBOX_INSTALL_MEDIA} DESTINATION ${JEERBOX_INSTALL_PROGRAMDIR}/Media)
install(FILES ${PROJECT_SOURCE_DIR}/data/UserInfo/Tallowick.cfg
        DESTINATION ${JEERBOX_INSTALL_PROGRAMDIR}/UserInfo)

# What desktops and software centres read.
install(FILES ${PROJECT_SOURCE_DIR}/data/desktop/jeerbox.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${PROJECT_SOURCE_DIR}/data/desktop/org.example.Jeerbox.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
foreach(size 32 48 128 256)
  install(FILES ${PROJECT_SOURCE_DIR}/data/icons/jeerbox-${size}.png
          DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps
          RENAME jeerbox.png)
endforeach()
# The manual pages carry the project's version, filled in here.
foreach(page jeer jeerbox)
  configure_file(${PROJECT_SOURCE_DIR}/docs/${page}.1.in ${PROJECT_BINARY_DIR}/man/${page}.1 @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/man/${page}.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endforeach()
# Completion of jeer's commands and options, where bash-completion looks.
install(FILES ${PROJECT_SOURCE_DIR}/data/completion/jeer.bash
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME jeer)
install(FILES ${PROJECT_SOURCE_DIR}/README.md DESTINATION ${CMAKE_INSTALL_DOCDIR})

# --- The Debian package: cpack in the build directory (make package) ---
set(CPACK_GENERATOR DEB)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_PACKAGE_NAME jeerbox)
set(CPACK_PACKAGE_VENDOR "Hollowmere")
set(CPACK_PACKAGE_CONTACT "Jeerbox maintainers <jeerbox@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "insults on demand, with a laugh")
set(CPACK_PACKAGE_DESCRIPTION [[Press "Insult me" and Jeerbox composes a fresh, theatrical English
insult from its word lists, shows it, plays a laugh, and lets you copy it
to the clipboard. The companion command jeer composes sentences in a
terminal and packs, unpacks and checks the word-list files.]])
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${CPACK_PACKAGE_CONTACT}")
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://www.jeerbox.example.org")
# dpkg-shlibdeps (dpkg-dev) names the runtime libraries from the programs
# themselves, with the versions they were built against.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The audio and network libraries are loaded at run time, so the programs
# don't name them: the package does.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libsdl2-2.0-0, libsdl2-mixer-2.0-0, libcurl4")
# The window's Tahoma-metric font; without it Qt falls back to a wider sans.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-wine")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
