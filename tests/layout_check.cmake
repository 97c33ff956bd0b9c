# Keeps the layers honest:
# - the store, model, core (outside core/ui) and the calculation modules stay free of widgets;
# - no code uses string-based connections, calls a method by a name in a string, or keeps state in
#   dynamic properties;
# - the window layers read and write controls only through the control-value adapter and lay out
#   only through the form builder.
# Files over 400 lines are listed as a warning: a sign that something belongs in the runtime or in a
# component of its own.
cmake_policy(SET CMP0007 NEW)
file(GLOB_RECURSE non_ui
  ${SRC}/store/*.cpp ${SRC}/store/*.h
  ${SRC}/model/*.cpp ${SRC}/model/*.h
  ${SRC}/core/*.cpp ${SRC}/core/*.h
  ${SRC}/calc/*.cpp ${SRC}/calc/*.h)
set(problems "")
foreach(f ${non_ui})
  # The window runtime lives in core/ui, the calculation windows in calc/ui.
  if(f MATCHES "/core/ui/" OR f MATCHES "/calc/ui/")
    continue()
  endif()
  file(STRINGS ${f} hits REGEX "#include <Q(Widget|tWidgets|MessageBox|Dialog|MainWindow|Label|LineEdit|ComboBox)")
  foreach(h ${hits})
    string(APPEND problems "${f}: widget below the window layer: ${h}\n")
  endforeach()
endforeach()

file(GLOB_RECURSE all_sources ${SRC}/*.cpp ${SRC}/*.h ${AUTOMATION}/*.cpp ${AUTOMATION}/*.h)
foreach(f ${all_sources})
  file(STRINGS ${f} hits REGEX "(SIGNAL|SLOT)\\(")
  foreach(h ${hits})
    string(APPEND problems "${f}: string-based connection: ${h}\n")
  endforeach()
  file(STRINGS ${f} hits REGEX "invokeMethod\\([^\"]*\"")
  foreach(h ${hits})
    string(APPEND problems "${f}: method called by a name in a string (use a typed link): ${h}\n")
  endforeach()
  # The one dynamic property the runtime keeps is the legacy "locked" flag of a control.
  file(STRINGS ${f} hits REGEX "setProperty\\(\"")
  foreach(h ${hits})
    if(NOT h MATCHES "setProperty\\(\"locked\"")
      string(APPEND problems "${f}: state kept in a dynamic property: ${h}\n")
    endif()
  endforeach()
  file(READ ${f} text)
  string(REGEX MATCHALL "\n" newlines "${text}")
  list(LENGTH newlines count)
  if(count GREATER 400)
    message(WARNING "${f} has ${count} lines")
  endif()
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

set(window_sources "")
foreach(layer ${WINDOW_LAYERS})
  file(GLOB_RECURSE found ${SRC}/${layer}/*.cpp ${SRC}/${layer}/*.h)
  list(APPEND window_sources ${found})
endforeach()
foreach(f ${window_sources} ${automation_sources})
  file(STRINGS ${f} hits REGEX "qobject_cast<(const )?Q(LineEdit|PlainTextEdit|TextEdit|ComboBox|CheckBox|RadioButton|ListWidget|TreeWidget) *\\*")
  foreach(h ${hits})
    string(APPEND problems "${f}: control value read past the adapter (use ControlValue): ${h}\n")
  endforeach()
endforeach()
foreach(f ${window_sources})
  file(STRINGS ${f} hits REGEX "new Q(Grid|H|V|Box|Form)(Box)?Layout")
  foreach(h ${hits})
    string(APPEND problems "${f}: layout made by hand (use FormBuilder): ${h}\n")
  endforeach()
endforeach()

if(problems)
  message(FATAL_ERROR "Layer rule broken:\n${problems}")
endif()
message(STATUS "layers are clean")
