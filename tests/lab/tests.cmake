# Two hosts and the real tools. A build tree has two labs, each raised and taken away around its share of
# the tests: what runs there waits more than it works.
set(KELVO_LAB_COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/lab/lab)

foreach(lab Lab SecondLab)
  foreach(step up down)
    add_test(NAME ${lab}.${step} COMMAND ${KELVO_LAB_COMMAND} ${step})
    set_tests_properties(${lab}.${step} PROPERTIES
      LABELS lab TIMEOUT 60 SKIP_RETURN_CODE 77 RESOURCE_LOCK ${lab}
      ENVIRONMENT KELVO_LAB=${CMAKE_BINARY_DIR}/${lab})
  endforeach()
  set_tests_properties(${lab}.up PROPERTIES FIXTURES_SETUP ${lab})
  set_tests_properties(${lab}.down PROPERTIES FIXTURES_CLEANUP ${lab})
endforeach()

add_executable(mdns_announcer children/mdns_announcer.cpp)
add_executable(tray_reader children/tray_reader.cpp)
target_link_libraries(tray_reader PRIVATE kelvo_bus_testing)
add_library(moved_clock MODULE lab/moved_clock.cpp)
target_include_directories(moved_clock PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})

# About half of the time.
set(KELVO_SECOND_LABS_CASES "SharingLabTest.*:HostileDaysTest.*:OnceLabTest.*:ShareLabTest.*")

# A case that goes into a host's network has to belong to the lab, which may have users of its own.
set(CMAKE_CROSSCOMPILING_EMULATOR ${KELVO_LAB_COMMAND} with)
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
    lab/set_up_terminal_lab_test.cpp
    lab/share_lab_test.cpp
    lab/sharing_lab_test.cpp
    lab/sync_lab_test.cpp
    lab/watchdog_lab_test.cpp
    lab/window_lab_test.cpp
    lab/work_lab_test.cpp
  LINKS kelvo_adapters_network
  TIMEOUT 180
  FILTER "-${KELVO_SECOND_LABS_CASES}"
  PROPERTIES
    FIXTURES_REQUIRED Lab
    RESOURCE_LOCK Lab
    ENVIRONMENT KELVO_LAB=${CMAKE_BINARY_DIR}/Lab
)
unset(CMAKE_CROSSCOMPILING_EMULATOR)
gtest_discover_tests(lab_tests
  DISCOVERY_MODE PRE_TEST NO_PRETTY_VALUES
  TEST_FILTER "${KELVO_SECOND_LABS_CASES}"
  PROPERTIES
    LABELS lab
    TIMEOUT 180
    FIXTURES_REQUIRED SecondLab
    RESOURCE_LOCK SecondLab
    ENVIRONMENT KELVO_LAB=${CMAKE_BINARY_DIR}/SecondLab)
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
