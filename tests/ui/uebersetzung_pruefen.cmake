# SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
#
# SPDX-License-Identifier: GPL-3.0-or-later

# Collects the texts of the sources into a copy of each translation file, as the update does, and fails
# when a text is missing from the file or its translation is unfinished or empty. The file stays as it is.
# Called with -DLUPDATE=... -DQUELLEN=<list file> -DOPTIONEN=<;-list> -DDATEIEN=<;-list> -DARBEIT=<folder>.
file(REMOVE_RECURSE ${ARBEIT})
file(MAKE_DIRECTORY ${ARBEIT})
set(fehler "")
foreach(datei ${DATEIEN})
  get_filename_component(name ${datei} NAME)
  set(kopie ${ARBEIT}/${name})
  file(COPY_FILE ${datei} ${kopie})
  execute_process(COMMAND ${LUPDATE} ${OPTIONEN} @${QUELLEN} -ts ${kopie}
                  RESULT_VARIABLE ergebnis OUTPUT_VARIABLE ausgabe ERROR_VARIABLE ausgabe)
  if(NOT ergebnis EQUAL 0)
    string(APPEND fehler "lupdate failed on ${name}:\n${ausgabe}\n")
    continue()
  endif()
  file(READ ${kopie} inhalt)
  # Entities such as &amp; hold semicolons, which would split CMake's lists.
  string(REPLACE ";" "_" inhalt "${inhalt}")
  # lupdate writes a new text as unfinished; a translation may also have been left empty.
  string(REGEX MATCHALL "<source>[^<]*</source>[ \t\r\n]*<translation[^>]*>[^<]*</translation>" nachrichten
         "${inhalt}")
  string(REGEX MATCHALL "<message" alle "${inhalt}")
  list(LENGTH nachrichten gelesen)
  list(LENGTH alle gesamt)
  if(NOT gelesen EQUAL gesamt)
    string(APPEND fehler "${name}: ${gesamt} messages, but only ${gelesen} in the expected form\n")
  endif()
  foreach(n ${nachrichten})
    if(n MATCHES "type=\"unfinished\"" OR n MATCHES "<translation[^>]*></translation>")
      string(REGEX REPLACE "^<source>([^<]*)</source>.*" "\\1" quelle "${n}")
      string(APPEND fehler "${name}: not translated: ${quelle}\n")
    endif()
  endforeach()
endforeach()
file(REMOVE_RECURSE ${ARBEIT})
if(fehler)
  message(FATAL_ERROR "${fehler}Update with `cmake --build build --target update_translations` and translate.")
endif()
