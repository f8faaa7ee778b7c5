# The built program on a desktop of the test's own, as a screen reader and a keyboard know it.
foreach(case
    EveryTab_HasEachTextOfItsForms
    Export_SaysHowItWent
    FieldThatIsDone_PassesTheFocusOn
    KeyState_IsSpokenWhenItIsAskedFor
    KeyboardAlone_SetsUpAndPulls
    Menus_OpenAndNameEachEntry
    SyncTab_SpeaksWhatIsShown
    Trouble_IsSpokenOnceWithItsCause)
  add_test(NAME A11yTest.${case}
    COMMAND /usr/bin/python3 -W ignore ${CMAKE_CURRENT_SOURCE_DIR}/a11y/a11y_test.py
      ${CMAKE_BINARY_DIR} ${case})
  set_tests_properties(A11yTest.${case} PROPERTIES
    LABELS a11y TIMEOUT 300 SKIP_RETURN_CODE 77)
endforeach()
