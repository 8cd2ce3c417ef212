# The shipped copies of the libraries that travel in the jars: stripped, each with its debug
# information in a file of its own.
#
#   <build>/lib/<name>    as linked, with its debug information: the tests and the tools load these
#   <build>/dist/<name>   stripped, with a .gnu_debuglink to <name>.debug: the jars carry these
#   <build>/debug/<name>.debug   the debug information alone (symbols, lines, types); the
#                         natives-debug jars carry these
#
# Both files carry the build-id of the linked library (-Wl,--build-id=sha1, a hash of its
# contents), by which debuggers match a stripped library with its debug file.

find_program(TAVREL_OBJCOPY NAMES ${CMAKE_OBJCOPY} objcopy REQUIRED)

set(TAVREL_DIST_DIR ${CMAKE_BINARY_DIR}/dist)
set(TAVREL_DEBUG_DIR ${CMAKE_BINARY_DIR}/debug)
file(MAKE_DIRECTORY ${TAVREL_DIST_DIR} ${TAVREL_DEBUG_DIR})

# tavrel_ship(<target>...): a stripped copy and a debug file of each library, made whenever the
# library is linked anew, as part of the default build.
function(tavrel_ship)
  set(outputs)
  foreach(target IN LISTS ARGN)
    set(name ${CMAKE_SHARED_LIBRARY_PREFIX}${target}${CMAKE_SHARED_LIBRARY_SUFFIX})
    set(stripped ${TAVREL_DIST_DIR}/${name})
    set(debug ${TAVREL_DEBUG_DIR}/${name}.debug)
    add_custom_command(OUTPUT ${stripped} ${debug}
      COMMAND ${TAVREL_OBJCOPY} --only-keep-debug $<TARGET_FILE:${target}> ${debug}
      # The link holds the debug file's name and checksum; the file's folder is not recorded.
      COMMAND ${TAVREL_OBJCOPY} --strip-all --add-gnu-debuglink=${debug}
              $<TARGET_FILE:${target}> ${stripped}
      DEPENDS ${target}
      COMMENT "Splitting ${name} into its stripped copy and its debug file"
      VERBATIM)
    list(APPEND outputs ${stripped} ${debug})
  endforeach()
  add_custom_target(tavrel_shipped ALL DEPENDS ${outputs})
endfunction()
