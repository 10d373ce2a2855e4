# What every target of this project shares: no compiler extensions, and warnings, which are nobody else's business when
# Herald is a part of another project.
function(herald_project_target target)
  set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF)
  if(NOT PROJECT_IS_TOP_LEVEL)
    return()
  endif()
  if(MSVC)
    target_compile_options(${target} PRIVATE /W4 /utf-8)
  else()
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor)
    if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
      # False alarms in the standard library's own strings.
      target_compile_options(${target} PRIVATE -Wno-restrict)
    endif()
  endif()
  set_target_properties(${target} PROPERTIES COMPILE_WARNING_AS_ERROR "${HERALD_WERROR}")
endfunction()

# A program of this project, which uses the library.
function(herald_program target)
  add_executable(${target} ${ARGN})
  target_link_libraries(${target} PRIVATE Herald::herald)
  herald_project_target(${target})
endfunction()
