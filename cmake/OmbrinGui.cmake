# The widget library. Its folders add their sources themselves; the order below is the order in
# which they may include each other: a folder includes only what stands above it, and two leaves
# that lie further down. windows/OmDesktop uses nothing but platform/, and effects/OmBalloonTip,
# as which the buttons in widgets/ show their tool tips, nothing but OmDesktop and its own pieces.
ombrin_add_library(ombrin_gui gui ombringui OMBRIN_BUILD_GUI)
target_link_libraries(ombrin_gui
  PUBLIC
    ombrin::core
    Qt${OMBRIN_QT}::Core
    Qt${OMBRIN_QT}::Gui
    Qt${OMBRIN_QT}::Widgets
    $<$<EQUAL:${OMBRIN_QT},6>:Qt6::Core5Compat>)
ombrin_precompile(ombrin_gui <QtWidgets/QtWidgets>)

foreach(folder IN ITEMS platform skin widgets effects screen windows dialogs contacts text views)
  add_subdirectory(${folder})
endforeach()
