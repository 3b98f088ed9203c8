# The installed pipe and valve tables, and the checks of the programs that write them.
add_executable(pipe_tables_test
    ${CMAKE_CURRENT_LIST_DIR}/PipeTables_test.cpp
    ${CMAKE_CURRENT_LIST_DIR}/PipeValveWriter_test.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ValveTables_test.cpp)
target_link_libraries(pipe_tables_test PRIVATE hydrofacts_pipe_table_parts
    hydrofacts_valve_table_parts hydrofacts hydrofacts_test_support)
target_compile_definitions(pipe_tables_test PRIVATE
    HYDROFACTS_PIPE_DATA="${PROJECT_SOURCE_DIR}/tables/pipes"
    HYDROFACTS_VALVE_DATA="${PROJECT_SOURCE_DIR}/tables/valves"
    HYDROFACTS_VALVE_METHODS="${PROJECT_SOURCE_DIR}/docs/valve-methods.md")
add_dependencies(pipe_tables_test hydrofacts_pipe_tables hydrofacts_valve_tables)
if(WIN32)
    add_test(NAME pipe_tables COMMAND pipe_tables_test)
else()
    gtest_discover_tests(pipe_tables_test TEST_PREFIX tables. DISCOVERY_TIMEOUT 60)
endif()
