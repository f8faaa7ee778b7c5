# What ./dev setup leaves on a machine.
add_test(NAME Setup.leavesNoServiceEnabled
  COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/system/quiet-machine)
set_tests_properties(Setup.leavesNoServiceEnabled PROPERTIES
  LABELS system TIMEOUT 60 SKIP_RETURN_CODE 77)
