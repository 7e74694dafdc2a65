# SPDX-License-Identifier: GPL-3.0-or-later
# One interface target that carries the compiler flags of every target.
include(GNUInstallDirs)

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)
set(CMAKE_AUTOUIC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
# The programs find each other beside themselves, in the build tree as after installation.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE RelWithDebInfo)
endif()

find_program(VELMORA_CCACHE ccache)
if(VELMORA_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${VELMORA_CCACHE}")
endif()

add_library(velmora_flags INTERFACE)
target_compile_options(velmora_flags INTERFACE -Wall -Wextra -Wconversion -Wshadow)
target_compile_definitions(velmora_flags INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
  QT_DEPRECATED_WARNINGS QT_MESSAGELOGCONTEXT)
if(VELMORA_WERROR)
  target_compile_options(velmora_flags INTERFACE -Werror)
endif()
if(VELMORA_SANITIZE)
  target_compile_options(velmora_flags INTERFACE
    -fsanitize=${VELMORA_SANITIZE} -fno-omit-frame-pointer)
  target_link_options(velmora_flags INTERFACE -fsanitize=${VELMORA_SANITIZE})
elseif(NOT WIN32)
  target_compile_options(velmora_flags INTERFACE
    -fstack-protector-strong $<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE> $<$<NOT:$<CONFIG:Debug>>:-D_FORTIFY_SOURCE=2>)
  target_link_options(velmora_flags INTERFACE -Wl,-z,relro,-z,now)
endif()

# velmora_library(NAME): a static library of one folder, included as "folder/File.h".
function(velmora_library name)
  add_library(${name} STATIC)
  target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
  target_link_libraries(${name} PRIVATE velmora_flags)
endfunction()
