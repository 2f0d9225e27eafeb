# Warnings, sanitizers and definitions that every target of the project takes by linking qor_options.
add_library(qor_options INTERFACE)
target_include_directories(qor_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(qor_options INTERFACE -Wall -Wextra -Wconversion -Wshadow)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # g++ 12 sees overlaps in the concatenation of strings where there are none.
  target_compile_options(qor_options INTERFACE -Wno-restrict)
endif()

if(QOR_WARNINGS_AS_ERRORS)
  target_compile_options(qor_options INTERFACE -Werror)
endif()
if(QOR_SANITIZE)
  target_compile_options(qor_options INTERFACE -fsanitize=address,undefined
                                               -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(qor_options INTERFACE -fsanitize=address,undefined)
endif()
