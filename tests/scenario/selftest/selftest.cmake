# Runs the scenario runner on files whose outcome is known: cmake -DRUNNER=... -P selftest.cmake

function(expect files wanted_code wanted_output wanted_errors)
    execute_process(COMMAND "${RUNNER}" ${files} WORKING_DIRECTORY "${CMAKE_CURRENT_LIST_DIR}"
        RESULT_VARIABLE code OUTPUT_VARIABLE output ERROR_VARIABLE errors)
    if(NOT code STREQUAL wanted_code)
        message(SEND_ERROR "${files}: exit code ${code} in the place of ${wanted_code}\n${output}${errors}")
    endif()
    if(NOT output STREQUAL wanted_output)
        message(SEND_ERROR "${files}: wanted\n${wanted_output}got\n${output}")
    endif()
    if(NOT errors STREQUAL wanted_errors)
        message(SEND_ERROR "${files}: wanted on the error stream\n${wanted_errors}got\n${errors}")
    endif()
endfunction()

expect(passes.qfs 0 "8 passed, 0 failed\n" "")

set(failures [[
fails.qfs:4: "another text than the expected one": expected value "Another", got value "Dobrin's Quernfield 2025"
fails.qfs:9: "a line that is not expected": expected nothing, got send "'where"
fails.qfs:15: "an expected line that does not come": expected send "'where", got nothing
fails.qfs:18: "a query that fails": the query fails: no such table: nowhere
fails.qfs:21: "no process for the memory": no process was added before
]])
expect(fails.qfs 1 "${failures}1 passed, 5 failed\n" "")

expect("--stop;fails.qfs;passes.qfs" 1 "${failures}1 passed, 5 failed\n" "")
expect("--stop;passes.qfs;fails.qfs" 1 "${failures}9 passed, 5 failed\n" "")

set(mistakes [[
errors.qfs:1: a step outside a scenario
errors.qfs:4: "an unknown step": unknown step "fly"
errors.qfs:6: "a text without its end": a quoted word without its closing quote
errors.qfs:8: "expected output before any step": expected output before any step
]])
expect(errors.qfs 1 "${mistakes}1 passed, 4 failed\n" "")

expect("passes.qfs;errors.qfs" 1 "${mistakes}9 passed, 4 failed\n" "")
expect(none.qfs 1 "none.qfs:0: the file cannot be read\n0 passed, 1 failed\n" "")
expect("" 2 "" "usage: quernfield-scenario [--print | --stop] FILE.qfs...\n")

set(printed [[
# Kept.

scenario "printed"
file ${DIR}/a.txt
| text
setting? Configuration UOPath
> value "${DIR}\\"
# Kept as well.
file? ${DIR}/a.txt
> line "text"
]])
expect("--print;print.qfs" 0 "${printed}" "")
