# The compiler options that every target of ours is built with. Warnings are errors everywhere.
add_library(folionet_warnings INTERFACE)
target_compile_options(folionet_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual -Werror)

if(FOLIONET_SANITIZE)
  add_compile_definitions(FUZZING_BUILD_MODE_UNSAFE_FOR_PRODUCTION)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# g++ 12 sees overlaps and lengths in the standard library's own strings that are not there, such as in
# "literal" + std::string; the sanitizers look for real ones.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(folionet_warnings INTERFACE
    -Wno-restrict -Wno-array-bounds -Wno-stringop-overflow -Wno-stringop-overread)
endif()
