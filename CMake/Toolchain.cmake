# Compiler, linker and cache: chosen once for the whole house.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

set(CMAKE_CXX_FLAGS_DEV "-O1 -g1")
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -g1")
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # GCC 12 raises these falsely where it inlines as much as this; the Dev build has them.
    string(APPEND CMAKE_CXX_FLAGS_RELEASE " -Wno-array-bounds -Wno-stringop-overflow -Wno-use-after-free")
endif()
set(HALVEX_SANITIZE "" CACHE STRING "Sanitizers, separated by commas; empty for none")

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    # The same sources in another folder hit the cache too.
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env
        CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1
        CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
        ${CCACHE_PROGRAM})
endif()

find_program(MOLD_PROGRAM mold)
if(MOLD_PROGRAM)
    add_link_options(-fuse-ld=mold)
endif()

# Libraries that are looked up only when wanted (such as the one for windows) must not be loaded at the start.
add_link_options(-Wl,--as-needed)

add_compile_options(-Wall -Wextra -Werror -fno-rtti -fvisibility=hidden
    # Pictures must be the same to the bit whatever the compiler contracts.
    -ffp-contract=off
    "-ffile-prefix-map=${CMAKE_SOURCE_DIR}=.")
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-fpch-preprocess
        # Objects are constructed in memory that was zeroed for them: what a constructor does not set must stay zero.
        -flifetime-dse=1)
else()
    add_compile_options(SHELL:-Xclang -fno-pch-timestamp)
endif()
if(HALVEX_SANITIZE)
    # vptr checks need run-time type information, which the engine's modules are built without.
    # Findings in the headers of libraries are not ours to mend.
    add_compile_options("-fsanitize-ignorelist=${CMAKE_SOURCE_DIR}/CMake/SanitizerIgnore.txt")
    add_compile_options(-fsanitize=${HALVEX_SANITIZE} -fno-sanitize=vptr -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${HALVEX_SANITIZE})
endif()
if(HALVEX_FUZZERS)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
