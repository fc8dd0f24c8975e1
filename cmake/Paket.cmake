# SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
#
# SPDX-License-Identifier: GPL-3.0-or-later

# Installation. Included last by the top-level CMakeLists.txt, so the programs are installed by target
# name wherever their folders define them.
#
#   cmake --install build --prefix ~/.local   the programs, menu entry, icons, metainfo and man pages
#   make package                              the same as a Debian package (debian/), programs in
#                                             /usr/games through CMAKE_INSTALL_BINDIR
#
# The help document and the pictures are Qt resources inside the game, so nothing lies next to it.
include(GNUInstallDirs)

# One application id for the desktop entry, the metainfo, the icon and the running window (Wayland app
# id); the game sets the same id with QGuiApplication::setDesktopFileName.
set(FUH_APP_ID org.example.FuchsUndHennen)
set(FUH_ASSETS ${PROJECT_SOURCE_DIR}/assets)

install(TARGETS selbstspiel RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})

# Man pages, gzip-compressed as Debian wants them: English in man6, German in de/man6.
find_program(FUH_GZIP gzip REQUIRED)
function(fuh_manpage quelle ziel_ordner)
  get_filename_component(name ${quelle} NAME)
  set(ausgabe ${CMAKE_CURRENT_BINARY_DIR}/man/${ziel_ordner}/${name})
  add_custom_command(OUTPUT ${ausgabe}.gz
    COMMAND ${CMAKE_COMMAND} -E copy ${quelle} ${ausgabe}
    # -n leaves name and time out of the archive, so the package is reproducible.
    COMMAND ${FUH_GZIP} -9nf ${ausgabe}
    DEPENDS ${quelle} VERBATIM)
  install(FILES ${ausgabe}.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/${ziel_ordner})
  set_property(GLOBAL APPEND PROPERTY FUH_INSTALL_DATEIEN ${ausgabe}.gz)
endfunction()

set(fuh_programme selbstspiel)
if(FUH_GUI)
  list(APPEND fuh_programme fuchs-und-hennen)
  install(TARGETS fuchs-und-hennen RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
  install(FILES ${FUH_ASSETS}/desktop/${FUH_APP_ID}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES ${FUH_ASSETS}/metainfo/${FUH_APP_ID}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
  # The game file's type, so that a file manager opens a game file with the game.
  install(FILES ${FUH_ASSETS}/desktop/${FUH_APP_ID}.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)

  # The icon: the game's own SVG, plus PNG sizes for menus and docks that want pixels. rsvg-convert
  # renders SVG completely and needs no display; a Qt tool would have to be built first and only
  # knows SVG Tiny.
  find_program(FUH_RSVG_CONVERT rsvg-convert REQUIRED)
  set(ikone ${FUH_ASSETS}/bilder/app.svg)
  install(FILES ${ikone} DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps RENAME ${FUH_APP_ID}.svg)
  foreach(px 16 22 24 32 48 64 128 256)
    set(png ${CMAKE_CURRENT_BINARY_DIR}/ikonen/${px}x${px}/${FUH_APP_ID}.png)
    add_custom_command(OUTPUT ${png}
      COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_CURRENT_BINARY_DIR}/ikonen/${px}x${px}
      COMMAND ${FUH_RSVG_CONVERT} --width ${px} --height ${px} --output ${png} ${ikone}
      DEPENDS ${ikone} VERBATIM)
    install(FILES ${png} DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${px}x${px}/apps)
    set_property(GLOBAL APPEND PROPERTY FUH_INSTALL_DATEIEN ${png})
  endforeach()
endif()

foreach(programm ${fuh_programme})
  fuh_manpage(${FUH_ASSETS}/man/${programm}.6 man6)
  fuh_manpage(${FUH_ASSETS}/man/de/${programm}.6 de/man6)
endforeach()
get_property(fuh_dateien GLOBAL PROPERTY FUH_INSTALL_DATEIEN)
add_custom_target(fuh_installdateien ALL DEPENDS ${fuh_dateien})
