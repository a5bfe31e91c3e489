# SPDX-License-Identifier: MIT
# cmake -DREADME=... -DEXAMPLE=... [-DPROGRAM=<zbbrowse> -DDATABASE=<the sample>] -P check_readme.cmake
# The README's embedding example must be this program, to the letter; and its picture, if the
# program is given, what that prints.
file(READ ${README} readme)
file(READ ${EXAMPLE} example)
string(FIND "${readme}" "```cpp\n${example}```\n" position)
if(position EQUAL -1)
    message(FATAL_ERROR "README.md does not show ${EXAMPLE} as it is")
endif()
string(REGEX MATCHALL "\n" lines "${example}")
list(LENGTH lines count)
if(count GREATER 30)
    message(FATAL_ERROR "${EXAMPLE} has ${count} lines; the example is to stay within 30")
endif()

if(PROGRAM)
    execute_process(COMMAND ${PROGRAM} ${DATABASE} OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
    if(NOT readme MATCHES "```text\n\\$ \\./run \\| head -n [0-9]+\n([^`]+)```\n")
        message(FATAL_ERROR "README.md has no picture of ./run")
    endif()
    set(picture "${CMAKE_MATCH_1}")
    string(FIND "${output}" "${picture}" position)
    if(NOT position EQUAL 0)
        message(FATAL_ERROR "README.md's picture is out of date; ./run begins with\n${output}")
    endif()
endif()
