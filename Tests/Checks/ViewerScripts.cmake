# A script that does what it can ends the viewer with 0; one that fails ends it with 1 and one line that says where and why.
function(run_script Name Text ExpectedCode ExpectedLine)
    set(File "${WORK_DIR}/${Name}.lua")
    file(WRITE "${File}" "${Text}")
    execute_process(COMMAND "${VIEWER}" --headless --renderer cpu --screen Gallery --script "${File}"
        RESULT_VARIABLE Code OUTPUT_VARIABLE Output ERROR_VARIABLE Output TIMEOUT 60)
    string(FIND "${Output}" "${ExpectedLine}" Place)
    if(NOT Code STREQUAL ExpectedCode OR Place EQUAL -1)
        message(FATAL_ERROR "${Name}: exit code ${Code} instead of ${ExpectedCode}, '${ExpectedLine}' expected in:\n${Output}")
    endif()
endfunction()

run_script(ViewerScriptPasses "Click('NavType')\nExpect(Count('text:Schemas') == 1)\nprint('all is well')\n" 0 "all is well")
run_script(ViewerScriptFails "Wait(0.1)\nClick('NavTypo')\n" 1 "ViewerScriptFails.lua:2: there is no widget 'NavTypo'; the nearest is 'NavType'")
