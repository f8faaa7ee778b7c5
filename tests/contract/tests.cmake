add_executable(settings_writer children/settings_writer.cpp)
target_link_libraries(settings_writer PRIVATE kelvo_testing kelvo_adapters_qt)

kelvo_tests(contract
  TIMEOUT 120
  SOURCES
    contract/bundle_contract_test.cpp
    contract/factory_template_test.cpp
    contract/local_file_manager_test.cpp
    contract/plist_codec_test.cpp
    contract/plist_defaults_faults_test.cpp
    contract/plist_defaults_sharing_test.cpp
    contract/plist_defaults_test.cpp
    contract/user_defaults_contract_test.cpp
  LINKS kelvo_adapters_qt kelvo_adapters_posix
)
add_dependencies(contract_tests settings_writer)
target_compile_definitions(contract_tests PRIVATE
  KELVO_RESOURCES="${CMAKE_BINARY_DIR}/lib/kelvo-mirror"
  KELVO_VERSION="${PROJECT_VERSION}"
  KELVO_SETTINGS_WRITER="$<TARGET_FILE:settings_writer>")
