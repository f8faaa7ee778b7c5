# The long run is `./dev soak`; a short one stands among the tests.
add_executable(soak_stand_in soak/stand_in.cpp)
add_library(soak_quick_clock MODULE soak/quick_clock.cpp)
target_include_directories(soak_quick_clock PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
add_executable(soak_driver soak/process_figures.cpp soak/soak_driver.cpp soak/soak_world.cpp)
target_include_directories(soak_driver PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(soak_driver PRIVATE kelvo_adapters_process Qt6::Sql)
add_dependencies(soak_driver kelvo-mirror kelvo_sentinel soak_stand_in soak_quick_clock)

# A sanitizer's own memory and its place before all preloaded libraries leave nothing to measure.
if(NOT CMAKE_CXX_FLAGS MATCHES "-fsanitize")
  add_test(NAME Soak.aHundredPasses
    COMMAND soak_driver 100 7 ${CMAKE_CURRENT_BINARY_DIR} $<TARGET_FILE:kelvo-mirror>
      $<TARGET_FILE:soak_quick_clock>)
  set_tests_properties(Soak.aHundredPasses PROPERTIES
    LABELS system TIMEOUT 180 SKIP_RETURN_CODE 77)
endif()
