kelvo_tests(unit
  SOURCES
    unit/activity_texts_test.cpp
    unit/app_delegate_test.cpp
    unit/bonjour_selection_test.cpp
    unit/bonjour_view_controller_test.cpp
    unit/bundle_version_test.cpp
    unit/checklist_test.cpp
    unit/close_policy_test.cpp
    unit/dnssd_service_test.cpp
    unit/duplicate_check_test.cpp
    unit/folder_selection_test.cpp
    unit/headless_front_test.cpp
    unit/key_state_test.cpp
    unit/login_item_setting_test.cpp
    unit/network_path_monitoring_test.cpp
    unit/notification_center_test.cpp
    unit/once_test.cpp
    unit/pass_cause_test.cpp
    unit/running_pass_test.cpp
    unit/pass_notices_test.cpp
    unit/plain_line_test.cpp
    unit/rsync_statistics_test.cpp
    unit/preferences_test.cpp
    unit/property_value_test.cpp
    unit/relaunch_decision_test.cpp
    unit/remote_account_test.cpp
    unit/remote_host_validation_test.cpp
    unit/remote_side_test.cpp
    unit/repeat_timer_test.cpp
    unit/rsync_command_test.cpp
    unit/service_name_rules_test.cpp
    unit/share_commands_test.cpp
    unit/smb_share_access_test.cpp
    unit/connection_check_test.cpp
    unit/ssh_key_provisioning_test.cpp
    unit/status_and_alerts_test.cpp
    unit/status_menu_test.cpp
    unit/stored_value_test.cpp
    unit/settings_commands_test.cpp
    unit/sync_cycle_test.cpp
    unit/text_test.cpp
    unit/view_controller_setup_test.cpp
    unit/view_controller_test.cpp
    unit/watchdog_test.cpp
  LINKS kelvo_app_start kelvo_app_commands kelvo_adapters_console kelvo_passes
)
# Not for the whole target: its precompiled headers serve every label.
set_source_files_properties(unit/pass_cause_test.cpp unit/rsync_statistics_test.cpp PROPERTIES
  COMPILE_DEFINITIONS "KELVO_TEXTS=\"${CMAKE_CURRENT_SOURCE_DIR}/texts\"")
set_source_files_properties(unit/preferences_test.cpp PROPERTIES COMPILE_DEFINITIONS
  "KELVO_PREFERENCE_KEYS=\"${CMAKE_SOURCE_DIR}/src/settings/preference_keys.h\";\
KELVO_MANUAL=\"${CMAKE_SOURCE_DIR}/docs/man/kelvo-mirror.1\"")
