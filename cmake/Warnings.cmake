# Our own code builds with warnings as errors; third-party headers come in
# as system includes through their imported targets, so they stay quiet.
function(renvale_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Werror -Wno-error=deprecated-declarations)
endfunction()

# One static library per source folder. Sources are picked up by glob so a
# new class needs no edit here; CONFIGURE_DEPENDS re-runs the glob on build.
function(renvale_library name folder)
  file(GLOB sources CONFIGURE_DEPENDS ${folder}/*.cpp ${folder}/*.h ${folder}/*.qrc)
  add_library(${name} STATIC ${sources})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  renvale_warnings(${name})
endfunction()
