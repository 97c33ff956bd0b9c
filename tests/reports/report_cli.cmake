# Reports made from the command line without a display: rows seeded by a script, then each report
# written as PDF and read back with pdftotext -layout (page count and key texts), and the refusals of
# an unknown report, scenario and project. Variables: ZOBREL, SEED_DB, WORK, SOURCE (tests/reports).
find_program(PDFTOTEXT pdftotext)
if(NOT PDFTOTEXT)
  message(FATAL_ERROR "pdftotext is missing (Debian package poppler-utils, installed by ./do)")
endif()
file(REMOVE_RECURSE "${WORK}")
file(MAKE_DIRECTORY "${WORK}/home")
file(COPY "${SEED_DB}" DESTINATION "${WORK}/home")
execute_process(COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen
                        "${ZOBREL}" --home "${WORK}/home" --user tester --script "${SOURCE}/cli_seed.js" --quit-after-script
                OUTPUT_VARIABLE seeded RESULT_VARIABLE rc)
if(NOT rc EQUAL 0 OR NOT seeded MATCHES "SID=([0-9]+) PID=([0-9]+)")
  message(FATAL_ERROR "seeding failed (${rc}): ${seeded}")
endif()
set(sid ${CMAKE_MATCH_1})
set(pid ${CMAKE_MATCH_2})

# Runs the program with the arguments; sets out_rc and out_err.
function(zobrel)
  execute_process(COMMAND ${CMAKE_COMMAND} -E env --unset=QT_QPA_PLATFORM --unset=DISPLAY --unset=WAYLAND_DISPLAY
                          "${ZOBREL}" --home "${WORK}/home" --user tester ${ARGN}
                  WORKING_DIRECTORY "${WORK}" RESULT_VARIABLE r ERROR_VARIABLE e OUTPUT_QUIET)
  set(out_rc ${r} PARENT_SCOPE)
  set(out_err "${e}" PARENT_SCOPE)
endfunction()

# Writes the report (a path relative to the working folder) and checks its pages and texts.
function(check_report name option id min_pages)
  zobrel(--report ${name} ${option} ${id} --pdf ${name}.pdf)
  if(NOT out_rc EQUAL 0 OR NOT EXISTS "${WORK}/${name}.pdf")
    message(FATAL_ERROR "${name}: exit ${out_rc}: ${out_err}")
  endif()
  execute_process(COMMAND "${PDFTOTEXT}" -layout "${WORK}/${name}.pdf" - OUTPUT_VARIABLE text)
  # pdftotext ends each page with a form feed.
  string(ASCII 12 form_feed)
  string(LENGTH "${text}" all)
  string(REPLACE "${form_feed}" "" rest "${text}")
  string(LENGTH "${rest}" without)
  math(EXPR pages "${all} - ${without}")
  if(pages LESS min_pages)
    message(FATAL_ERROR "${name}: ${pages} page(s), expected at least ${min_pages}")
  endif()
  # Compared with runs of blanks made one, as the layout mode spaces words by their position.
  string(REGEX REPLACE " +" " " text "${text}")
  foreach(expected "Wildlife Scenario" "Page 1 of ${pages}" "Page ${pages} of ${pages}" ${ARGN})
    string(REGEX REPLACE " +" " " expected "${expected}")
    string(FIND "${text}" "${expected}" at)
    if(at LESS 0)
      message(FATAL_ERROR "${name}: \"${expected}\" not in\n${text}")
    endif()
  endforeach()
  message(STATUS "${name}: ${pages} page(s)")
endfunction()

check_report(ws_Diet --scenario ${sid} 3 "Report Type:  DIET" "Diet Items" "Diet Item:" "Ants (Formicidae)" "Diet Proportion:" "0.128")
check_report(ws_calc --scenario ${sid} 1 "Report Type: CALCULATIONS" "Dietary Requirements - Conversion from (kcal/d) to (g/d)" "Total" "1.00")
check_report(ws_Species --scenario ${sid} 1 "Report Type:  SPECIES" "Reference(s)" "Anaxyrus americanus")
check_report(ws_Weight --scenario ${sid} 1 "Report Type:  WEIGHT" "Body Weight(g): 118.7")
check_report(ProjectSummary --project ${pid} 1 "Project Name:" "Toad Pond" "toad.ZOB")

foreach(bad "--report;nothing;--scenario;${sid};--pdf;x.pdf|there is no report \"nothing\""
            "--report;ws_Diet;--scenario;987654;--pdf;x.pdf|there is no scenario with the id 987654"
            "--report;ProjectSummary;--project;987654;--pdf;x.pdf|there is no project with the id 987654"
            "--report;ws_Diet;--pdf;x.pdf|needs --scenario")
  string(REPLACE "|" ";" parts "${bad}")
  list(POP_BACK parts message)
  zobrel(${parts})
  string(FIND "${out_err}" "${message}" at)
  if(out_rc EQUAL 0 OR at LESS 0 OR EXISTS "${WORK}/x.pdf")
    message(FATAL_ERROR "${parts}: exit ${out_rc}, \"${out_err}\", expected \"${message}\"")
  endif()
endforeach()
