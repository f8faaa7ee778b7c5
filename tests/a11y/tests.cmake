# The built program on a desktop of the test's own, as a screen reader and a keyboard know it. The
# cases of a file are read from it.
foreach(suite A11yTest:a11y_test SpokenTest:spoken_test)
  string(REPLACE ":" ";" suite ${suite})
  list(GET suite 0 class)
  list(GET suite 1 file)
  set(file ${CMAKE_CURRENT_SOURCE_DIR}/a11y/${file}.py)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
  file(STRINGS ${file} cases REGEX "^    def test_")
  foreach(case ${cases})
    string(REGEX REPLACE "^ *def test_([A-Za-z0-9_]+).*" "\\1" case ${case})
    add_test(NAME ${class}.${case}
      COMMAND /usr/bin/python3 -B -W ignore ${file} ${CMAKE_BINARY_DIR} ${case})
    set_tests_properties(${class}.${case} PROPERTIES
      LABELS a11y TIMEOUT 600 SKIP_RETURN_CODE 77)
  endforeach()
endforeach()
