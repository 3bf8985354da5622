# A room is a folder of src/ and the library made of it. Its list of neighbours is the whole of what it may include; the
# test rooms.includeOnlyWhatTheyName (tools/rooms --check) holds includes and lists together.

add_library(borvik_flags INTERFACE)
# Results must be the same to the last bit on every machine: no contraction to fused multiply-add, no reassociation.
target_compile_options(borvik_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
    -ffp-contract=off -D_GLIBCXX_ASSERTIONS)
if(BORVIK_WERROR)
    target_compile_options(borvik_flags INTERFACE -Werror)
endif()
if(BORVIK_SANITIZE)
    target_compile_options(borvik_flags INTERFACE
        -fsanitize=${BORVIK_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(borvik_flags INTERFACE -fsanitize=${BORVIK_SANITIZE})
endif()
if(BORVIK_FUZZ)
    # Arithmetic faults are read from the processor's flags, so clang must not compute what the program doesn't ask for.
    target_compile_options(borvik_flags INTERFACE -fsanitize=fuzzer-no-link -ffp-exception-behavior=maytrap)
endif()

# borvik_room(NAME [KNOWS room...] [LINKS target...]): library borvik_NAME of all sources in this folder. Headers are included
# by their path from src/, such as "results/tables.h".
function(borvik_room name)
    cmake_parse_arguments(ROOM "" "" "KNOWS;LINKS" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
    file(GLOB headers CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
    add_library(borvik_${name} STATIC ${sources} ${headers})
    # A header that appears after the first build must run moc again; CMake 3.25 with Ninja does not see it by itself.
    file(REMOVE ${CMAKE_CURRENT_BINARY_DIR}/borvik_${name}_autogen/timestamp)
    target_include_directories(borvik_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    list(TRANSFORM ROOM_KNOWS PREPEND borvik_)
    target_link_libraries(borvik_${name} PRIVATE borvik_flags PUBLIC ${ROOM_LINKS} ${ROOM_KNOWS})
endfunction()

# borvik_test(NAME [LINKS target...]): one test program of all *_test.cpp in this folder; its cases become ctest tests.
function(borvik_test name)
    cmake_parse_arguments(TEST "" "" "LINKS" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
    if(NOT sources)
        return()
    endif()
    add_executable(test_${name} ${sources})
    target_link_libraries(test_${name} PRIVATE ${TEST_LINKS} borvik_test_support borvik_flags GTest::gtest GTest::gmock)
    target_compile_definitions(test_${name} PRIVATE BORVIK_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
    # Their own time is nothing beside the compiler's.
    target_compile_options(test_${name} PRIVATE -O0)
    set_target_properties(test_${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    gtest_discover_tests(test_${name} TEST_PREFIX ${name}. DISCOVERY_MODE PRE_TEST
        PROPERTIES ENVIRONMENT QT_QPA_PLATFORM=offscreen)
endfunction()
