# What is installed, and what desktops read of it. The package itself: ./dev package --test.
add_test(NAME Install.underADestdir_IsCompleteAndWorks
  COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/package/destdir-test ${CMAKE_BINARY_DIR})
add_test(NAME Install.desktopEntry_IsValid
  COMMAND desktop-file-validate ${CMAKE_SOURCE_DIR}/resources/desktop/org.kelvo.KelvoMirror.desktop)
add_test(NAME Install.metainfo_IsValid
  COMMAND appstreamcli validate --no-net
    ${CMAKE_SOURCE_DIR}/resources/desktop/org.kelvo.KelvoMirror.metainfo.xml)
set_tests_properties(Install.underADestdir_IsCompleteAndWorks Install.desktopEntry_IsValid
  Install.metainfo_IsValid PROPERTIES LABELS system TIMEOUT 120)
set_tests_properties(Install.underADestdir_IsCompleteAndWorks PROPERTIES
  ENVIRONMENT LSAN_OPTIONS=suppressions=${CMAKE_CURRENT_SOURCE_DIR}/support/leaks.supp)

# The units of systemd. A sanitizer asks the kernel for what no unit leaves it.
if(NOT CMAKE_CXX_FLAGS MATCHES "-fsanitize")
  set(kelvo_pass_under_units PASS)
endif()
add_test(NAME Units.workWithFewRights
  COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/package/unit-test ${CMAKE_BINARY_DIR}
    ${kelvo_pass_under_units})
set_tests_properties(Units.workWithFewRights PROPERTIES
  LABELS system TIMEOUT 120 SKIP_RETURN_CODE 77)
add_test(NAME Units.runUnderARealSystemd
  COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/package/service-test ${CMAKE_BINARY_DIR})
set_tests_properties(Units.runUnderARealSystemd PROPERTIES
  LABELS system TIMEOUT 400 SKIP_RETURN_CODE 77)
