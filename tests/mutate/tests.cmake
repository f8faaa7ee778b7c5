# ./dev mutate can fail: tried on a program of five lines.
add_test(NAME Mutate.smallProgram_KnownMutantsAreCaughtAndKnownOnesSurvive
  COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/mutate/self-test)
set_tests_properties(Mutate.smallProgram_KnownMutantsAreCaughtAndKnownOnesSurvive PROPERTIES
  LABELS system TIMEOUT 300 SKIP_RETURN_CODE 77)

add_test(NAME Mutate.everyEquivalentMutant_StandsInItsSource
  COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/mutate/equivalents-test)
set_tests_properties(Mutate.everyEquivalentMutant_StandsInItsSource PROPERTIES
  LABELS architecture TIMEOUT 60)
