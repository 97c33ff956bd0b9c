# Runs one window script through the program on a fresh copy of the seeded database.
# Variables: ZOBREL (the program), SEED_DB (the seeded database), SCRIPT (the .js file), WORK (a folder).
# The script's first lines may ask for more:
#   // runs: twice        start the program a second time in the same folder, as the same user; before
#                         that start the file "second-start" is put into the program folder
#   // options: --diag 1  further start-up options
#   // home: data folder   start without --home, with XDG_DATA_HOME and HOME inside WORK: the program
#                         makes its per-user data folder WORK/data/Zobrel from the template
# Window geometry is remembered in WORK/config, never in the tester's own settings.
foreach(var ZOBREL SEED_DB SCRIPT WORK)
  if(NOT DEFINED ${var})
    message(FATAL_ERROR "run_script.cmake needs -D${var}=...")
  endif()
endforeach()

file(STRINGS "${SCRIPT}" header LIMIT_COUNT 5)
set(runs 1)
set(options "")
set(data_folder OFF)
foreach(line IN LISTS header)
  if(line MATCHES "^// runs: twice")
    set(runs 2)
  elseif(line MATCHES "^// options: (.*)$")
    separate_arguments(options UNIX_COMMAND "${CMAKE_MATCH_1}")
  elseif(line MATCHES "^// home: data folder")
    set(data_folder ON)
  endif()
endforeach()

file(REMOVE_RECURSE "${WORK}")
file(MAKE_DIRECTORY "${WORK}")
set(ENV{QT_QPA_PLATFORM} offscreen)
set(ENV{XDG_CONFIG_HOME} "${WORK}/config")
if(data_folder)
  set(ENV{XDG_DATA_HOME} "${WORK}/data")
  set(ENV{HOME} "${WORK}")
  set(program_folder "${WORK}/data/Zobrel")
  set(home_option "")
else()
  file(COPY_FILE "${SEED_DB}" "${WORK}/ZOB.sqlite")
  set(program_folder "${WORK}")
  set(home_option --home "${WORK}")
endif()
foreach(run RANGE 1 ${runs})
  if(run EQUAL 2)
    file(WRITE "${program_folder}/second-start" "")
  endif()
  execute_process(
    COMMAND "${ZOBREL}" ${home_option} --user tester ${options} --script "${SCRIPT}" --quit-after-script
    WORKING_DIRECTORY "${WORK}"
    OUTPUT_VARIABLE out
    ERROR_VARIABLE err
    RESULT_VARIABLE rc
    TIMEOUT 170)
  if(runs GREATER 1)
    message("start ${run}:")
  endif()
  message("${out}")
  if(err)
    message("standard error:\n${err}")
  endif()
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "the script ${SCRIPT} failed (exit status ${rc})")
  endif()
endforeach()
