kelvo_tests(architecture
  SOURCES architecture/catalogues_test.cpp architecture/include_arrows_test.cpp
    architecture/linked_libraries_test.cpp
)
target_compile_definitions(architecture_tests PRIVATE
  KELVO_PROGRAM="${CMAKE_BINARY_DIR}/bin/kelvo-mirror"
  KELVO_PROGRAM_PART="$<TARGET_FILE:kelvo_program>"
  KELVO_BUS="$<TARGET_FILE:kelvo_bus>"
  KELVO_WINDOW="$<TARGET_FILE:kelvo_window>"
  KELVO_SOURCE_FOLDER="${CMAKE_SOURCE_DIR}/src"
  KELVO_ARCHITECTURE="${CMAKE_SOURCE_DIR}/docs/architecture.md"
  KELVO_TRANSLATIONS="${CMAKE_SOURCE_DIR}/resources/translations"
  KELVO_REFRESH="${CMAKE_SOURCE_DIR}/scripts/translations")
add_dependencies(architecture_tests kelvo-mirror)

add_test(NAME Security.everyNamedTest_IsThere
  COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/architecture/security-names)
set_tests_properties(Security.everyNamedTest_IsThere PROPERTIES LABELS architecture TIMEOUT 60)
