# The Qt windows of the game; included by CMakeLists.txt when FUH_GUI is on.
add_library(fuh_game_ui STATIC
  brett_fenster.cpp brett_fenster.h
  brett_flaeche.cpp brett_flaeche.h
  svg_bild.cpp svg_bild.h)
set_target_properties(fuh_game_ui PROPERTIES AUTOMOC ON)
target_link_libraries(fuh_game_ui PUBLIC fuh_game fuh_dialogs_ui Qt6::Widgets Qt6::Svg)
qt_add_resources(fuh_game_ui "fuh_spielbilder"
  PREFIX "/"
  BASE "${PROJECT_SOURCE_DIR}/assets"
  FILES
    ${PROJECT_SOURCE_DIR}/assets/bilder/app.svg
    ${PROJECT_SOURCE_DIR}/assets/bilder/brett.svg
    ${PROJECT_SOURCE_DIR}/assets/bilder/fuchs.svg
    ${PROJECT_SOURCE_DIR}/assets/bilder/henne.svg)

add_executable(fuchs-und-hennen main.cpp)
target_link_libraries(fuchs-und-hennen PRIVATE fuh_game_ui)
