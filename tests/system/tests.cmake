include(system/setup.cmake)
