# Two hosts and the real tools. One lab a build tree, raised and taken away around all its tests.
set(KELVO_LAB_COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/lab/lab)
set(KELVO_LAB_STATE ${CMAKE_BINARY_DIR}/lab-state)

foreach(step up down)
  add_test(NAME Lab.${step} COMMAND ${KELVO_LAB_COMMAND} ${step})
  set_tests_properties(Lab.${step} PROPERTIES
    LABELS lab TIMEOUT 60 SKIP_RETURN_CODE 77 RESOURCE_LOCK lab
    ENVIRONMENT KELVO_LAB=${KELVO_LAB_STATE})
endforeach()
set_tests_properties(Lab.up PROPERTIES FIXTURES_SETUP lab)
set_tests_properties(Lab.down PROPERTIES FIXTURES_CLEANUP lab)

add_executable(mdns_announcer children/mdns_announcer.cpp)
add_executable(tray_reader children/tray_reader.cpp)
target_link_libraries(tray_reader PRIVATE kelvo_bus_testing)
add_library(moved_clock MODULE lab/moved_clock.cpp)
target_include_directories(moved_clock PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})

kelvo_tests(lab
  SOURCES
    lab/avahi_browser_test.cpp
    lab/hostile_days_test.cpp
    lab/lab_fixture.cpp
    lab/lab_host_test.cpp
    lab/once_lab_test.cpp
    lab/lab_network.cpp
    lab/network_lab_test.cpp
    lab/set_up_lab_test.cpp
    lab/share_lab_test.cpp
    lab/sharing_lab_test.cpp
    lab/sync_lab_test.cpp
    lab/watchdog_lab_test.cpp
    lab/window_lab_test.cpp
    lab/work_lab_test.cpp
  LINKS kelvo_adapters_network
  TIMEOUT 180
  PROPERTIES
    FIXTURES_REQUIRED lab
    RESOURCE_LOCK lab
    ENVIRONMENT KELVO_LAB=${KELVO_LAB_STATE}
)
add_dependencies(lab_tests mdns_announcer moved_clock tray_reader)
target_compile_definitions(lab_tests PRIVATE
  KELVO_ANNOUNCER="$<TARGET_FILE:mdns_announcer>"
  KELVO_MOVED_CLOCK="$<TARGET_FILE:moved_clock>"
  KELVO_LAB_COMMAND="${KELVO_LAB_COMMAND}"
  KELVO_NETWORK_WATCHER="$<TARGET_FILE:network_watcher>"
  KELVO_PICTURES="${CMAKE_BINARY_DIR}/pictures"
  KELVO_RESOURCES="${CMAKE_BINARY_DIR}/lib/kelvo-mirror"
  KELVO_TRAY_READER="$<TARGET_FILE:tray_reader>"
  KELVO_PROGRAM="${CMAKE_BINARY_DIR}/bin/kelvo-mirror")
add_dependencies(lab_tests network_watcher)
