# Quicker builds where the tools are there; what the caller has chosen stands.
find_program(ZELVOR_CCACHE ccache)
foreach(language C CXX)
    if(ZELVOR_CCACHE AND NOT DEFINED CMAKE_${language}_COMPILER_LAUNCHER)
        set(CMAKE_${language}_COMPILER_LAUNCHER ${ZELVOR_CCACHE})
    endif()
endforeach()
find_program(ZELVOR_LLD ld.lld)
if(ZELVOR_LLD AND NOT CMAKE_EXE_LINKER_FLAGS MATCHES "-fuse-ld=")
    add_link_options(-fuse-ld=lld)
endif()

# One interface target carries the compiler settings that every part of the program shares.
add_library(zelvor_settings INTERFACE)
target_compile_options(zelvor_settings INTERFACE
    $<$<COMPILE_LANGUAGE:CXX>:-Wall;-Wextra;-Wpedantic;-Wshadow;-Wconversion;-Wsign-conversion>
    $<$<BOOL:${ZELVOR_WERROR}>:-Werror>)
target_compile_definitions(zelvor_settings INTERFACE
    QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING)
if(ZELVOR_SANITIZE)
    target_compile_options(zelvor_settings INTERFACE
        -fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
    target_link_options(zelvor_settings INTERFACE -fsanitize=address,undefined)
endif()

# zelvor_library(NAME LINKS...) makes the static library of the folder it is called in. A part links
# only what it may know, so a wrong include fails at once.
function(zelvor_library name)
    file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
    add_library(zelvor_${name} STATIC ${sources})
    target_include_directories(zelvor_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(zelvor_${name} PUBLIC zelvor_settings ${ARGN})
    set_target_properties(zelvor_${name} PROPERTIES LINKER_LANGUAGE CXX)
endfunction()

# zelvor_test(NAME LINKS...) makes one test program of the folder it is called in and registers each
# of its tests with CTest.
function(zelvor_test name)
    file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
    if(NOT sources)
        return()
    endif()
    add_executable(test_${name} ${sources})
    target_include_directories(test_${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_link_libraries(test_${name} PRIVATE GTest::gtest_main ${ARGN})
    gtest_discover_tests(test_${name} TEST_PREFIX "${name}." DISCOVERY_TIMEOUT 60
        PROPERTIES TIMEOUT 300 ENVIRONMENT "TZ=UTC;LC_ALL=C.UTF-8")
endfunction()
