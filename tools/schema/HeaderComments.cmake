# Makes a source of what the headers below FOLDER say of their classes: their comments and the first lines of their declarations.
# cmake -DFOLDER=... -DOUTPUT=... -P HeaderComments.cmake

cmake_minimum_required(VERSION 3.25)

file(GLOB_RECURSE headers RELATIVE ${FOLDER} ${FOLDER}/*.h)
set(text "")
foreach(header IN LISTS headers)
  file(STRINGS ${FOLDER}/${header} lines ENCODING UTF-8 REGEX "^(// |/// |[A-Za-z])")
  list(JOIN lines "\n" content)
  string(REPLACE "\\;" ";" content "${content}")
  string(APPEND text "R\"~~~(#${header}\n${content}\n)~~~\"\n")
endforeach()
file(
  CONFIGURE
  OUTPUT ${OUTPUT}
  CONTENT "#include \"schema/HeaderComments.h\"\n\nnamespace Tessel {\nconst char* const COMMENTS_OF_HEADERS =\n@text@;\n}\n"
  @ONLY
)
