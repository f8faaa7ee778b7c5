kelvo_tests(unit
  SOURCES
    unit/plain_line_test.cpp
    unit/property_value_test.cpp
    unit/text_test.cpp
  LINKS kelvo_sync
)
