# Not among the tests: `./dev soak` runs it, for minutes.
add_executable(soak_stand_in soak/stand_in.cpp)
add_library(soak_quick_clock MODULE soak/quick_clock.cpp)
add_executable(soak_driver soak/process_figures.cpp soak/soak_driver.cpp soak/soak_world.cpp)
target_include_directories(soak_driver PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(soak_driver PRIVATE kelvo_adapters_posix Qt6::Sql)
add_dependencies(soak_driver kelvo-mirror kelvo_sentinel soak_stand_in soak_quick_clock)
