# Runs FUZZER with ARGUMENTS in FOLDER, on a fresh copy of CORPUS.
file(REMOVE_RECURSE ${FOLDER})
file(MAKE_DIRECTORY ${FOLDER}/corpus)
file(GLOB seeds ${CORPUS}/*)
if(NOT seeds)
  message(FATAL_ERROR "There are no seeds in ${CORPUS}")
endif()
file(COPY ${seeds} DESTINATION ${FOLDER}/corpus)
execute_process(
  COMMAND ${FUZZER} ${ARGUMENTS} -print_final_stats=1 ${FOLDER}/corpus
  WORKING_DIRECTORY ${FOLDER}
  RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "The fuzzer ended with ${result}; the input is in ${FOLDER}")
endif()
