# The contract suites of ports with a widget or a desktop service behind them need its main.
kelvo_tests(ui WIDGETS
  SOURCES
    contract/status_menu_contract_test.cpp
    contract/tray_host_contract_test.cpp
    ui/accessible_tree_test.cpp
    ui/activity_tab_test.cpp
    ui/announcement_test.cpp
    ui/application_menu_test.cpp
    ui/arrivals_view_test.cpp
    ui/bindings_test.cpp
    ui/bonjour_sheet_test.cpp
    ui/busy_row_test.cpp
    ui/button_effects_test.cpp
    ui/checklist_view_test.cpp
    ui/colors_test.cpp
    ui/day_chart_test.cpp
    ui/diagnostics_tab_test.cpp
    ui/first_paint_test.cpp
    ui/icons_test.cpp
    ui/language_test.cpp
    ui/main_window_test.cpp
    ui/mirrored_test.cpp
    ui/muted_hints_test.cpp
    ui/path_control_view_test.cpp
    ui/profiles_sheet_test.cpp
    ui/remote_tab_test.cpp
    ui/room_test.cpp
    ui/settings_places_test.cpp
    ui/settings_tab_test.cpp
    ui/ssh_line_box_test.cpp
    ui/sheet_presenter_test.cpp
    ui/sync_tab_test.cpp
    ui/tray_icon_test.cpp
    ui/widget_main_view_test.cpp
    ui/window_actions_test.cpp
    ui/wrapped_label_test.cpp
  LINKS kelvo_app_window kelvo_bus_testing Qt6::Test
)
target_compile_definitions(ui_tests PRIVATE
  KELVO_TRANSLATIONS="${CMAKE_SOURCE_DIR}/resources/translations")
