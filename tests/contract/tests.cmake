kelvo_tests(contract
  TIMEOUT 120
  SOURCES
    contract/bundle_contract_test.cpp
    contract/local_file_manager_test.cpp
    contract/plist_codec_test.cpp
    contract/user_defaults_contract_test.cpp
  LINKS kelvo_adapters_qt kelvo_adapters_posix
)
