# Names each class that is missing where all of its kind stand: messages and requests in their tables, exported
# classes in herald/herald.h. Run with -P, ROOT being the source tree.
cmake_minimum_required(VERSION 3.25)

set(message_bases EmptyMessage RecordMessage WireMessage CashierMessage TreeReply)
set(request_bases EmptyRequest RecordRequest WireRequest ImprovedRequest)
# No message id stands for it.
set(messages_without_id NumPlayersLoggedIn)
# What only the library's own sources and those of an application's own records include.
set(internal_headers herald/wire/WireReader.h herald/wire/WireWriter.h)

file(READ ${ROOT}/herald/herald.h umbrella)
file(READ ${ROOT}/herald/messages/ClientMessageTable.cpp client_table)
file(READ ${ROOT}/herald/messages/ServerMessageTable.cpp server_table)

set(classes 0)
file(GLOB_RECURSE headers RELATIVE ${ROOT} ${ROOT}/herald/*.h)
foreach(header IN LISTS headers)
  file(READ ${ROOT}/${header} text)
  string(REGEX MATCHALL "(>\n)?class HERALD_API [A-Za-z0-9]+[ \n:a-z]*[A-Za-z]*" declarations "${text}")
  string(FIND "${umbrella}" "#include <${header}>" included)
  if(declarations AND included EQUAL -1 AND NOT header IN_LIST internal_headers)
    list(TRANSFORM declarations REPLACE "^.*HERALD_API ([A-Za-z0-9]+).*$" "\\1" OUTPUT_VARIABLE names)
    list(JOIN names ", " names)
    message(SEND_ERROR "herald/herald.h does not include ${header}, which exports ${names}")
  endif()

  foreach(declaration IN LISTS declarations)
    if(NOT declaration MATCHES "^class HERALD_API ([A-Za-z0-9]+)[ \n]*:[ \n]*public ([A-Za-z]+)")
      continue()  # it has no base, or is a template, which "template <...>" precedes
    endif()
    set(name ${CMAKE_MATCH_1})
    set(base ${CMAKE_MATCH_2})
    math(EXPR classes "${classes} + 1")
    if(base IN_LIST message_bases AND NOT name IN_LIST messages_without_id AND NOT client_table MATCHES "row<${name}>")
      message(SEND_ERROR "${header}: the message ${name} has no row in herald/messages/ClientMessageTable.cpp")
    elseif(base IN_LIST request_bases AND NOT server_table MATCHES "row<${name}>")
      message(SEND_ERROR "${header}: the request ${name} has no row in herald/messages/ServerMessageTable.cpp")
    endif()
  endforeach()
endforeach()

if(classes EQUAL 0)
  message(SEND_ERROR "no class was found in ${ROOT}/herald")
endif()
