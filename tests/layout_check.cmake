# Keeps the layers honest: the store, model, core (outside core/ui) and the calculation modules stay
# free of widgets, and no code uses string-based connections.
file(GLOB_RECURSE non_ui
  ${SRC}/store/*.cpp ${SRC}/store/*.h
  ${SRC}/model/*.cpp ${SRC}/model/*.h
  ${SRC}/core/*.cpp ${SRC}/core/*.h
  ${SRC}/calc/*.cpp ${SRC}/calc/*.h)
set(problems "")
foreach(f ${non_ui})
  get_filename_component(name ${f} NAME)
  # Windows of a layer start with "frm"; the window runtime lives in core/ui.
  if(name MATCHES "^frm" OR f MATCHES "/core/ui/")
    continue()
  endif()
  file(STRINGS ${f} hits REGEX "#include <Q(Widget|tWidgets|MessageBox|Dialog|MainWindow|Label|LineEdit|ComboBox)")
  foreach(h ${hits})
    string(APPEND problems "${f}: ${h}\n")
  endforeach()
endforeach()
file(GLOB_RECURSE all_sources ${SRC}/*.cpp ${SRC}/*.h ${AUTOMATION}/*.cpp ${AUTOMATION}/*.h)
foreach(f ${all_sources})
  file(STRINGS ${f} hits REGEX "(SIGNAL|SLOT)\\(")
  foreach(h ${hits})
    string(APPEND problems "${f}: string-based connection: ${h}\n")
  endforeach()
endforeach()
# The script runner knows no window and no layer: windows are found by name, layers register the
# objects they offer to scripts themselves.
file(GLOB_RECURSE automation_sources ${AUTOMATION}/*.cpp ${AUTOMATION}/*.h)
foreach(f ${automation_sources})
  file(STRINGS ${f} hits REGEX "(#include \"frm|__has_include|ZOB_HAVE_)")
  foreach(h ${hits})
    string(APPEND problems "${f}: the script runner names a window or a layer: ${h}\n")
  endforeach()
endforeach()
if(problems)
  message(FATAL_ERROR "Layer rule broken (widgets below the window layer, SIGNAL/SLOT strings, or windows in automation):\n${problems}")
endif()
message(STATUS "layers are clean")
