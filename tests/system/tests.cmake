include(system/setup.cmake)

kelvo_tests(system
  SOURCES system/program_test.cpp
  TIMEOUT 120
)
target_compile_definitions(system_tests PRIVATE
  KELVO_PROGRAM="${CMAKE_BINARY_DIR}/bin/kelvo-mirror"
  KELVO_VERSION="${PROJECT_VERSION}")
add_dependencies(system_tests kelvo-mirror)
