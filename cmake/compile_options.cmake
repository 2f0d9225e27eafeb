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

# Builds for users are hardened: what a report's author finds in a decoder is to be of no use. The
# sanitizers see more by themselves and can't do with some of it.
if(NOT QOR_SANITIZE)
  include(CheckPIESupported)
  check_pie_supported(LANGUAGES CXX)
  set(CMAKE_POSITION_INDEPENDENT_CODE ON)
  target_compile_options(qor_options INTERFACE -fstack-protector-strong -fstack-clash-protection)
  if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64|i[3-6]86)$")
    target_compile_options(qor_options INTERFACE -fcf-protection=full)
  endif()
  # Buffers can be checked by optimised code only.
  target_compile_options(qor_options INTERFACE
    $<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>)
  target_link_options(qor_options INTERFACE -Wl,-z,relro,-z,now,-z,noexecstack)
endif()
