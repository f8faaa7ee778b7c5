add_executable(settings_writer children/settings_writer.cpp)
target_link_libraries(settings_writer PRIVATE kelvo_testing kelvo_adapters)
add_executable(record_writer children/record_writer.cpp)
target_link_libraries(record_writer PRIVATE kelvo_testing kelvo_adapters)
add_library(failing_file MODULE children/failing_file.cpp)
target_include_directories(failing_file PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
add_executable(zoo children/zoo.cpp)
add_executable(network_watcher children/network_watcher.cpp)
target_link_libraries(network_watcher PRIVATE kelvo_adapters kelvo_fakes)

kelvo_tests(contract
  TIMEOUT 120
  SOURCES
    contract/arrivals_test.cpp
    contract/avahi_session_test.cpp
    contract/background_queue_contract_test.cpp
    contract/bundle_contract_test.cpp
    contract/command_processes_test.cpp
    contract/command_table_test.cpp
    contract/console_contract_test.cpp
    contract/copy_client_test.cpp
    contract/copy_starter_test.cpp
    contract/desktop_notices_contract_test.cpp
    contract/detached_start_test.cpp
    contract/dispatch_queue_contract_test.cpp
    contract/dnssd_browser_contract_test.cpp
    contract/endpoint_search_contract_test.cpp
    contract/factory_template_test.cpp
    contract/far_end_test.cpp
    contract/file_manager_contract_test.cpp
    contract/file_trust_test.cpp
    contract/file_watch_test.cpp
    contract/guests_contract_test.cpp
    contract/line_backlog_test.cpp
    contract/local_file_manager_test.cpp
    contract/log_file_contract_test.cpp
    contract/login_item_contract_test.cpp
    contract/mac_volume_search_test.cpp
    contract/network_checker_contract_test.cpp
    contract/network_manager_test.cpp
    contract/pass_progress_test.cpp
    contract/pass_store_contract_test.cpp
    contract/plist_codec_test.cpp
    contract/plist_defaults_faults_test.cpp
    contract/plist_defaults_links_test.cpp
    contract/plist_defaults_sharing_test.cpp
    contract/plist_defaults_test.cpp
    contract/plist_file_test.cpp
    contract/plist_guard_test.cpp
    contract/posix_shell_runner_test.cpp
    contract/private_places_test.cpp
    contract/qt_main_queue_test.cpp
    contract/remote_task_test.cpp
    contract/rotating_log_file_test.cpp
    contract/sentinel_launcher_contract_test.cpp
    contract/sentinel_test.cpp
    contract/service_answer_test.cpp
    contract/color_scheme_test.cpp
    contract/command_runner_contract_test.cpp
    contract/signal_pipe_test.cpp
    contract/signals_contract_test.cpp
    contract/single_copy_contract_test.cpp
    contract/service_manager_test.cpp
    contract/shell_words_contract_test.cpp
    contract/whole_pull_file_test.cpp
    contract/words_of_passes_test.cpp
    contract/sqlite_pass_faults_test.cpp
    contract/sqlite_pass_healing_test.cpp
    contract/sqlite_pass_layout_test.cpp
    contract/sqlite_pass_store_test.cpp
    contract/ssh_configuration_test.cpp
    contract/ssh_connection_test.cpp
    contract/stream_console_test.cpp
    contract/system_information_test.cpp
    contract/terminal_contract_test.cpp
    contract/terminal_dialogue_test.cpp
    contract/terminal_line_test.cpp
    contract/terminal_window_test.cpp
    contract/thread_pool_queue_test.cpp
    contract/tray_item_contract_test.cpp
    contract/user_defaults_contract_test.cpp
    contract/utf8_collector_test.cpp
    contract/workspace_contract_test.cpp
  LINKS kelvo_ui kelvo_adapters kelvo_adapters_display kelvo_bus_testing
)
add_dependencies(contract_tests failing_call failing_file kelvo_sentinel network_watcher
  record_writer settings_writer zoo)
target_compile_definitions(contract_tests PRIVATE
  KELVO_FAILING_CALL="$<TARGET_FILE:failing_call>"
  KELVO_FAILING_FILE="$<TARGET_FILE:failing_file>"
  KELVO_NETWORK_WATCHER="$<TARGET_FILE:network_watcher>"
  KELVO_SENTINEL="$<TARGET_FILE:kelvo_sentinel>"
  KELVO_RECORD_WRITER="$<TARGET_FILE:record_writer>"
  KELVO_RESOURCES="${CMAKE_BINARY_DIR}/lib/kelvo-mirror"
  KELVO_VERSION="${PROJECT_VERSION}"
  KELVO_SETTINGS_WRITER="$<TARGET_FILE:settings_writer>"
  KELVO_ZOO="$<TARGET_FILE:zoo>")
