# The whole attack is `./dev attack`; its short form stands among the tests.
add_library(failing_call MODULE attack/failing_call.cpp)
target_include_directories(failing_call PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})

# A sanitizer's place before all preloaded libraries leaves no call to fail.
if(NOT CMAKE_CXX_FLAGS MATCHES "-fsanitize")
  add_test(NAME Attack.shortForm
    COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/attack/attack --short ${CMAKE_BINARY_DIR})
  set_tests_properties(Attack.shortForm PROPERTIES LABELS attack TIMEOUT 300)
endif()
