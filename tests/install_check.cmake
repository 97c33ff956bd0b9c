cmake_minimum_required(VERSION 3.25)
# Installs the build into PREFIX and checks the layout of the installation, the menu entry, and that
# --version and --help answer without a display. Variables: BUILD (the build tree), PREFIX.
foreach(var BUILD PREFIX)
  if(NOT DEFINED ${var})
    message(FATAL_ERROR "install_check.cmake needs -D${var}=...")
  endif()
endforeach()

file(REMOVE_RECURSE "${PREFIX}")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${PREFIX}"
                OUTPUT_VARIABLE out ERROR_VARIABLE err RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "cmake --install failed (${rc}):\n${out}\n${err}")
endif()

foreach(f bin/zobrel share/zobrel/ZOB.sqlite share/icons/hicolor/scalable/apps/zobrel.svg
          share/applications/zobrel.desktop)
  if(NOT EXISTS "${PREFIX}/${f}")
    message(FATAL_ERROR "the installation lacks ${f}")
  endif()
endforeach()
file(SIZE "${PREFIX}/share/zobrel/ZOB.sqlite" size)
if(size LESS 100000)
  message(FATAL_ERROR "the installed template database is too small (${size} bytes)")
endif()
# Nothing but the template: no user's database travels with an installation.
if(EXISTS "${PREFIX}/bin/ZOB.sqlite")
  message(FATAL_ERROR "a database was installed beside the program")
endif()

file(STRINGS "${PREFIX}/share/applications/zobrel.desktop" entry)
foreach(line "Exec=zobrel" "Icon=zobrel" "Type=Application")
  if(NOT line IN_LIST entry)
    message(FATAL_ERROR "the menu entry lacks ${line}")
  endif()
endforeach()

# Without any display: a window application would abort here.
unset(ENV{DISPLAY})
unset(ENV{WAYLAND_DISPLAY})
set(ENV{QT_QPA_PLATFORM} xcb)
execute_process(COMMAND "${PREFIX}/bin/zobrel" --version OUTPUT_VARIABLE out ERROR_VARIABLE err RESULT_VARIABLE rc)
if(NOT rc EQUAL 0 OR NOT out MATCHES "^Zobrel [0-9]+\\.[0-9]+\\.[0-9]+")
  message(FATAL_ERROR "--version gave (${rc}): ${out}${err}")
endif()
execute_process(COMMAND "${PREFIX}/bin/zobrel" --help OUTPUT_VARIABLE out ERROR_VARIABLE err RESULT_VARIABLE rc)
foreach(option --home --user --diag --script --quit-after-script --script-timeout --version)
  if(NOT rc EQUAL 0 OR NOT out MATCHES "${option}")
    message(FATAL_ERROR "--help gave (${rc}) without ${option}: ${out}${err}")
  endif()
endforeach()
message("installed into ${PREFIX}")
