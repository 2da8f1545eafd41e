# Writes the help project PROJECT from the pages in SOURCE. In contents.txt a line names a page,
# without its ending; an indented page stands below the one before it.
file(STRINGS ${SOURCE}/contents.txt lines)
set(sections "")
set(keywords "")
set(files "")
set(open FALSE)
foreach(line IN LISTS lines)
  string(STRIP "${line}" page)
  if(page STREQUAL "")
    continue()
  endif()
  file(READ ${SOURCE}/${page}.html html)
  if(NOT html MATCHES "<title>([^<]+)</title>")
    message(FATAL_ERROR "The help page ${page}.html has no title")
  endif()
  set(title "${CMAKE_MATCH_1}")
  if(html MATCHES "<meta name=\"keywords\" content=\"([^\"]+)\"")
    string(REPLACE "," ";" words "${CMAKE_MATCH_1}")
    foreach(word IN LISTS words)
      string(STRIP "${word}" word)
      string(APPEND keywords "<keyword name=\"${word}\" ref=\"${page}.html\"/>\n")
    endforeach()
  endif()
  if(open AND NOT line MATCHES "^ ")
    string(APPEND sections "</section>\n")
    set(open FALSE)
  endif()
  if(line MATCHES "^ ")
    string(APPEND sections "<section title=\"${title}\" ref=\"${page}.html\"/>\n")
  else()
    string(APPEND sections "<section title=\"${title}\" ref=\"${page}.html\">\n")
    set(open TRUE)
  endif()
endforeach()
if(open)
  string(APPEND sections "</section>\n")
endif()

file(GLOB pages RELATIVE ${SOURCE} ${SOURCE}/*.html ${SOURCE}/*.css)
get_filename_component(folder ${PROJECT} DIRECTORY)
foreach(page IN LISTS pages)
  string(APPEND files "<file>${page}</file>\n")
  configure_file(${SOURCE}/${page} ${folder}/${page} COPYONLY)
endforeach()

file(WRITE ${PROJECT} "<?xml version=\"1.0\" encoding=\"UTF-8\"?>
<QtHelpProject version=\"1.0\">
<namespace>vestrel</namespace>
<virtualFolder>help</virtualFolder>
<filterSection>
<toc>
${sections}</toc>
<keywords>
${keywords}</keywords>
<files>
${files}</files>
</filterSection>
</QtHelpProject>
")
