add_executable(zoo children/zoo.cpp)

kelvo_tests(contract
  SOURCES
    contract/background_queue_contract_test.cpp
    contract/console_contract_test.cpp
    contract/dispatch_queue_contract_test.cpp
    contract/line_backlog_test.cpp
    contract/log_file_contract_test.cpp
    contract/notification_center_contract_test.cpp
    contract/posix_shell_runner_test.cpp
    contract/qt_main_queue_test.cpp
    contract/rotating_log_file_test.cpp
    contract/shell_runner_contract_test.cpp
    contract/signal_pipe_test.cpp
    contract/stream_console_test.cpp
    contract/thread_pool_queue_test.cpp
    contract/utf8_collector_test.cpp
  LINKS kelvo_adapters_posix kelvo_adapters_qt
)
target_compile_definitions(contract_tests PRIVATE KELVO_ZOO="$<TARGET_FILE:zoo>")
add_dependencies(contract_tests zoo)
