kelvo_tests(architecture
  SOURCES architecture/include_arrows_test.cpp
)
target_compile_definitions(architecture_tests PRIVATE
  KELVO_SOURCE_FOLDER="${CMAKE_SOURCE_DIR}/src")
