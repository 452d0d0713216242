# What the tests of the package share. They set BUILD_DIR, SOURCE_DIR and WORK_DIR.

# run(COMMAND ARGUMENT...): ends the test if the command fails, and else sets `output` to what it printed.
function(run)
    execute_process(COMMAND ${ARGV} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        list(JOIN ARGV " " commandLine)
        message(FATAL_ERROR "${commandLine}\nended with ${result}:\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

# check_example(PROGRAM): puts the sample databases beside the built example and runs it.
function(check_example program)
    file(GLOB databases "${BUILD_DIR}/bin/*.db3")
    if(NOT databases)
        message(FATAL_ERROR "There are no sample databases in ${BUILD_DIR}/bin.")
    endif()
    cmake_path(GET program PARENT_PATH folder)
    file(COPY ${databases} DESTINATION "${folder}")
    run("${program}")
    if(NOT output MATCHES "(^|\n)Hesko\n")
        message(FATAL_ERROR "The example does not know the model Hesko; it printed:\n${output}")
    endif()
endfunction()
