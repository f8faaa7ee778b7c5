# What ./dev setup leaves on a machine.
add_test(NAME Setup.leavesNoServiceEnabled
  COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/system/quiet-machine)
set_tests_properties(Setup.leavesNoServiceEnabled PROPERTIES
  LABELS system TIMEOUT 60 SKIP_RETURN_CODE 77)

# What ./dev test says at its end.
add_test(NAME Skipped.tests_AreNamedByReason
  COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/system/skipped-test ${CMAKE_SOURCE_DIR}/scripts/skipped)
set_tests_properties(Skipped.tests_AreNamedByReason PROPERTIES LABELS system TIMEOUT 60)
