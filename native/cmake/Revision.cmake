# Writes the source revision (40 lower-case hexadecimal digits) into OUTPUT.
# Without git, or outside a checkout, the revision is forty zeros.
set(revision "0000000000000000000000000000000000000000")
find_package(Git QUIET)
if(GIT_FOUND)
  execute_process(COMMAND ${GIT_EXECUTABLE} rev-parse HEAD
    WORKING_DIRECTORY ${SOURCE_DIR}
    OUTPUT_VARIABLE git_revision
    RESULT_VARIABLE git_result
    ERROR_QUIET OUTPUT_STRIP_TRAILING_WHITESPACE)
  if(git_result EQUAL 0 AND git_revision MATCHES "^[0-9a-f]+$")
    string(LENGTH "${git_revision}" git_length)
    if(git_length EQUAL 40)
      set(revision "${git_revision}")
    endif()
  endif()
endif()
set(content "#define TAVREL_SOURCE_REVISION \"${revision}\"\n")
if(EXISTS "${OUTPUT}")
  file(READ "${OUTPUT}" old)
endif()
if(NOT "${old}" STREQUAL "${content}")
  file(WRITE "${OUTPUT}" "${content}")
endif()
