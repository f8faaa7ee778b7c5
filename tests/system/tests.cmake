include(system/setup.cmake)

add_executable(tray_program system/tray_program.cpp)
target_link_libraries(tray_program PRIVATE kelvo_ui_widgets kelvo_adapters_tray)

kelvo_tests(system
  SOURCES
    system/program_test.cpp
    system/tray_system_test.cpp
  LINKS kelvo_bus_testing
  TIMEOUT 120
  PROPERTIES
    ENVIRONMENT LSAN_OPTIONS=suppressions=${CMAKE_CURRENT_SOURCE_DIR}/support/leaks.supp
)
target_compile_definitions(system_tests PRIVATE
  KELVO_PROGRAM="${CMAKE_BINARY_DIR}/bin/kelvo-mirror"
  KELVO_TRAY_PROGRAM="$<TARGET_FILE:tray_program>"
  KELVO_VERSION="${PROJECT_VERSION}")
add_dependencies(system_tests kelvo-mirror tray_program)
