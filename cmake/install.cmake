# What stands where once it is installed. The component "core" exports and prints; "window" adds what
# a desktop needs, "cups" what print queues do.
include(GNUInstallDirs)
set(QOR_PROGRAM_DIR ${CMAKE_INSTALL_LIBDIR}/qorutlview)
set(QOR_DOC_DIR ${CMAKE_INSTALL_DATAROOTDIR}/doc/qorutlview)
set(QOR_ICON_DIR ${CMAKE_INSTALL_DATAROOTDIR}/icons/hicolor)
set(PACKAGING ${PROJECT_SOURCE_DIR}/packaging)

# The program finds its modules and its resource file beside itself, wherever a link leads to it from.
install(TARGETS qorutlview qorexport qor_cups qor_harfbuzz qor_gsf
  RUNTIME DESTINATION ${QOR_PROGRAM_DIR} COMPONENT core
  LIBRARY DESTINATION ${QOR_PROGRAM_DIR} COMPONENT core)
install(FILES data/pdflib.upr DESTINATION ${QOR_PROGRAM_DIR} COMPONENT core)
file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/packaging/bin)
foreach(program qorutlview qorexport)
  file(RELATIVE_PATH way ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR}/qorutlview/${program})
  file(CREATE_LINK ${way} ${PROJECT_BINARY_DIR}/packaging/bin/${program} SYMBOLIC)
  install(FILES ${PROJECT_BINARY_DIR}/packaging/bin/${program}
    DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT core)
endforeach()

# Makes a text of its template: version, date and releases are the change log's, options and exit codes
# those of the document.
function(make_text name document)
  set(text ${PROJECT_BINARY_DIR}/packaging/${name})
  set(sources ${PROJECT_SOURCE_DIR}/${document} ${PROJECT_SOURCE_DIR}/CHANGELOG.md
    ${PACKAGING}/${name}.in)
  add_custom_command(OUTPUT ${text}
    COMMAND awk -v version=${QOR_VERSION} -v docs=${CMAKE_INSTALL_PREFIX}/${QOR_DOC_DIR} -v text=${text}
      -f ${PACKAGING}/fill.awk ${sources}
    DEPENDS ${PACKAGING}/fill.awk ${sources} VERBATIM)
endfunction()

# CUPS looks below the prefix of the system, whatever the kind of processor.
set(QOR_FILTER_DIR lib/cups/filter)
install(TARGETS qorreporttopdf RUNTIME DESTINATION ${QOR_PROGRAM_DIR} COMPONENT cups)
file(RELATIVE_PATH QOR_WAY_TO_PROGRAMS ${CMAKE_INSTALL_PREFIX}/${QOR_FILTER_DIR} ${CMAKE_INSTALL_FULL_LIBDIR}/qorutlview)
configure_file(${PACKAGING}/cups/qorreporttopdf.in ${PROJECT_BINARY_DIR}/packaging/qorreporttopdf @ONLY)
install(PROGRAMS ${PROJECT_BINARY_DIR}/packaging/qorreporttopdf DESTINATION ${QOR_FILTER_DIR} COMPONENT cups)
install(FILES ${PACKAGING}/cups/qorutlview.types ${PACKAGING}/cups/qorutlview.convs
  DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/cups/mime COMPONENT cups)

make_text(qorutlview.1 README.md)
make_text(qorexport.1 docs/servers.md)
foreach(program qorutlview qorexport)
  list(APPEND texts ${PROJECT_BINARY_DIR}/packaging/${program}.1)
  install(FILES ${PROJECT_BINARY_DIR}/packaging/${program}.1
    DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT core)
  install(FILES ${PACKAGING}/${program}.bash RENAME ${program}
    DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/bash-completion/completions COMPONENT core)
endforeach()
install(FILES CHANGELOG.md DESTINATION ${QOR_DOC_DIR} COMPONENT core)
file(GLOB documents RELATIVE ${PROJECT_SOURCE_DIR} CONFIGURE_DEPENDS README.md docs/*.md)
foreach(document ${documents})
  set(text ${PROJECT_BINARY_DIR}/packaging/doc/${document})
  get_filename_component(place ${document} DIRECTORY)
  file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/packaging/doc/${place})
  add_custom_command(OUTPUT ${text}
    COMMAND awk -v text=${text} -f ${PACKAGING}/installed_doc.awk ${PROJECT_SOURCE_DIR}/${document}
    DEPENDS ${PACKAGING}/installed_doc.awk ${PROJECT_SOURCE_DIR}/${document} VERBATIM)
  list(APPEND texts ${text})
  install(FILES ${text} DESTINATION ${QOR_DOC_DIR}/${place} COMPONENT core)
endforeach()
install(DIRECTORY docs/examples DESTINATION ${QOR_DOC_DIR}/docs USE_SOURCE_PERMISSIONS COMPONENT core)

if(QOR_WINDOWS)
  install(TARGETS qor_preview LIBRARY DESTINATION ${QOR_PROGRAM_DIR} COMPONENT window)
  install(FILES ${PACKAGING}/qorutlview.desktop ${PACKAGING}/qorutlview-report.desktop
    DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/applications COMPONENT window)
  install(FILES ${PACKAGING}/qorutlview.xml
    DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/mime/packages COMPONENT window)
  make_text(qorutlview.metainfo.xml README.md)
  list(APPEND texts ${PROJECT_BINARY_DIR}/packaging/qorutlview.metainfo.xml)
  install(FILES ${PROJECT_BINARY_DIR}/packaging/qorutlview.metainfo.xml
    DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/metainfo COMPONENT window)
  # The window looks for its guide there.
  if(EXISTS ${PROJECT_SOURCE_DIR}/docs/guide)
    install(DIRECTORY docs/guide DESTINATION ${QOR_DOC_DIR} COMPONENT window PATTERN "*.sh" EXCLUDE)
  endif()

  set(drawing ${PROJECT_SOURCE_DIR}/src/windows/icons/qorutlview.svg)
  install(FILES ${drawing} DESTINATION ${QOR_ICON_DIR}/scalable/apps COMPONENT window)
  # Desktops that read no drawings are few: who only builds needs no tool for them.
  find_program(RSVG_CONVERT rsvg-convert)
  if(RSVG_CONVERT)
    foreach(side 16 32 48 128 256)
      set(icon ${PROJECT_BINARY_DIR}/packaging/icons/${side}/qorutlview.png)
      file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/packaging/icons/${side})
      add_custom_command(OUTPUT ${icon}
        COMMAND ${RSVG_CONVERT} -w ${side} -h ${side} ${drawing} -o ${icon}
        DEPENDS ${drawing} VERBATIM)
      list(APPEND texts ${icon})
      install(FILES ${icon} DESTINATION ${QOR_ICON_DIR}/${side}x${side}/apps COMPONENT window)
    endforeach()
  endif()
endif()
add_custom_target(qor_packaging ALL DEPENDS ${texts})
