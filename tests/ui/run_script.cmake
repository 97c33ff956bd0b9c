# Runs one window script through the program on a fresh copy of the seeded database.
# Variables: ZOBREL (the program), SEED_DB (the seeded database), SCRIPT (the .js file), WORK (a folder).
foreach(var ZOBREL SEED_DB SCRIPT WORK)
  if(NOT DEFINED ${var})
    message(FATAL_ERROR "run_script.cmake needs -D${var}=...")
  endif()
endforeach()

file(REMOVE_RECURSE "${WORK}")
file(MAKE_DIRECTORY "${WORK}")
file(COPY_FILE "${SEED_DB}" "${WORK}/ZOB.sqlite")

set(ENV{QT_QPA_PLATFORM} offscreen)
execute_process(
  COMMAND "${ZOBREL}" --home "${WORK}" --user tester --script "${SCRIPT}" --quit-after-script
  WORKING_DIRECTORY "${WORK}"
  OUTPUT_VARIABLE out
  ERROR_VARIABLE err
  RESULT_VARIABLE rc
  TIMEOUT 170)
message("${out}")
if(err)
  message("standard error:\n${err}")
endif()
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "the script ${SCRIPT} failed (exit status ${rc})")
endif()
