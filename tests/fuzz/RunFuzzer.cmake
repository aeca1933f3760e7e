# Runs FUZZER in FOLDER on a fresh copy of CORPUS, with inputs of at most LENGTH bytes and perhaps an
# OPTION, for as many seconds as BRISEL_FUZZ_SECONDS says or for 2.
set(seconds 2)
if(DEFINED ENV{BRISEL_FUZZ_SECONDS})
  set(seconds $ENV{BRISEL_FUZZ_SECONDS})
endif()
file(REMOVE_RECURSE ${FOLDER})
file(MAKE_DIRECTORY ${FOLDER}/corpus)
file(GLOB seeds ${CORPUS}/*)
if(NOT seeds)
  message(FATAL_ERROR "There are no seeds in ${CORPUS}")
endif()
file(COPY ${seeds} DESTINATION ${FOLDER}/corpus)
execute_process(
  COMMAND ${FUZZER} -max_len=${LENGTH} -timeout=10 -max_total_time=${seconds} ${OPTION} ${FOLDER}/corpus
  WORKING_DIRECTORY ${FOLDER}
  RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "The fuzzer ended with ${result}; the input is in ${FOLDER}")
endif()
