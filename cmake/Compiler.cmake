# The language level, the warnings and the sanitizers of all targets.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

add_compile_options(-Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
  -Wold-style-cast -Wcast-qual -Wformat=2 -Wimplicit-fallthrough -Werror)

# g++ 12 falsely warns of overlapping copies when strings are joined (GCC bug 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  add_compile_options(-Wno-restrict)
endif()

# Every build must compute the same numbers: no fused multiply-add, no reordering.
add_compile_options(-ffp-contract=off)

if(TAVRELKIN_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# The instrumentation shows the fuzzer which code its inputs reach.
if(TAVRELKIN_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

if(TAVRELKIN_COVERAGE)
  add_compile_options(--coverage)
  add_link_options(--coverage)
endif()
