include(system/setup.cmake)

add_executable(tray_program system/tray_program.cpp)
target_link_libraries(tray_program PRIVATE kelvo_ui_widgets kelvo_adapters_display
  kelvo_adapters_process)

add_executable(watched_program children/watched_program.cpp)
target_link_libraries(watched_program PRIVATE kelvo_app_start kelvo_adapters)

kelvo_tests(system
  SOURCES
    system/ask_system_test.cpp
    system/bus_module_system_test.cpp
    system/end_system_test.cpp
    system/far_end_system_test.cpp
    system/flood_system_test.cpp
    system/hardening_system_test.cpp
    system/private_files_system_test.cpp
    system/profiles_system_test.cpp
    system/program_signal_test.cpp
    system/once_system_test.cpp
    system/service_system_test.cpp
    system/setup_system_test.cpp
    system/program_test.cpp
    system/tray_menu_system_test.cpp
    system/tray_system_test.cpp
    system/watchdog_system_test.cpp
    system/wayland_system_test.cpp
    system/window_module_system_test.cpp
    system/window_system_test.cpp
  LINKS kelvo_app kelvo_bus_testing Qt6::Gui
  TIMEOUT 120
  PROPERTIES
    ENVIRONMENT LSAN_OPTIONS=suppressions=${CMAKE_CURRENT_SOURCE_DIR}/support/leaks.supp
)
target_compile_definitions(system_tests PRIVATE
  KELVO_FAILING_FILE="$<TARGET_FILE:failing_file>"
  KELVO_HARDENED_BUILD=$<BOOL:${KELVO_HARDENED}>
  KELVO_PICTURES="${CMAKE_BINARY_DIR}/pictures"
  KELVO_PROGRAM="${CMAKE_BINARY_DIR}/bin/kelvo-mirror"
  KELVO_PROGRAM_PART="$<TARGET_FILE:kelvo_program>"
  KELVO_SENTINEL="$<TARGET_FILE:kelvo_sentinel>"
  KELVO_WATCHED_PROGRAM="$<TARGET_FILE:watched_program>"
  KELVO_TRAY_PROGRAM="$<TARGET_FILE:tray_program>"
  KELVO_VERSION="${PROJECT_VERSION}"
  KELVO_WINDOW="$<TARGET_FILE:kelvo_window>")
add_dependencies(system_tests failing_file kelvo-mirror kelvo_sentinel tray_program watched_program)
