kelvo_tests(unit
  SOURCES
    unit/close_policy_test.cpp
    unit/headless_front_test.cpp
    unit/preferences_test.cpp
    unit/plain_line_test.cpp
    unit/property_value_test.cpp
    unit/remote_host_validation_test.cpp
    unit/repeat_timer_test.cpp
    unit/rsync_command_test.cpp
    unit/status_and_alerts_test.cpp
    unit/status_menu_test.cpp
    unit/stored_value_test.cpp
    unit/sync_cycle_test.cpp
    unit/text_test.cpp
    unit/view_controller_test.cpp
  LINKS kelvo_ui kelvo_adapters_headless
)
