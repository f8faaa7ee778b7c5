add_executable(tray_program system/tray_program.cpp)
target_link_libraries(tray_program PRIVATE kelvo_ui_widgets kelvo_adapters_tray)

kelvo_tests(system TIMEOUT 120
  SOURCES system/tray_system_test.cpp
  LINKS kelvo_bus_testing
)
add_dependencies(system_tests tray_program)
target_compile_definitions(system_tests PRIVATE KELVO_TRAY_PROGRAM="$<TARGET_FILE:tray_program>")
