# Run by cpack between installing each component to a folder of its own and packing it: puts in what Debian packages
# have beside what "cmake --install" gives, where Debian has it.

if(DEFINED ENV{SOURCE_DATE_EPOCH})
  set(time "$ENV{SOURCE_DATE_EPOCH}")
else()
  string(TIMESTAMP time "%s" UTC)
endif()
execute_process(COMMAND date --utc --rfc-email "--date=@${time}"
  OUTPUT_VARIABLE date OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)

# compressed(<file>): "<file>.gz" in its place, without name and time.
function(compressed file)
  execute_process(COMMAND gzip --best --no-name --force "${file}" COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# What others have written that is compiled in: into the thumbnailer, and into the command line.
set(others_in_editor options)
set(others_in_cli options json)

foreach(component IN LISTS CPACK_COMPONENTS_ALL)
  string(TOUPPER "${component}" upper)
  set(package "${CPACK_DEBIAN_${upper}_PACKAGE_NAME}")
  set(root "${CPACK_TEMPORARY_DIRECTORY}/${component}")
  set(share "${root}${CPACK_PACKAGING_INSTALL_PREFIX}/share")
  set(doc "${share}/doc/${package}")

  file(MAKE_DIRECTORY "${doc}")
  file(READ "${CPACK_DYEWORKS_SOURCE}/packaging/copyright" copyright)
  foreach(part IN LISTS others_in_${component})
    file(READ "${CPACK_DYEWORKS_SOURCE}/packaging/copyright.${part}" others)
    string(APPEND copyright "\n${others}")
  endforeach()
  file(WRITE "${doc}/copyright" "${copyright}")
  configure_file("${CPACK_DYEWORKS_SOURCE}/CHANGELOG.md" "${doc}/changelog" COPYONLY)
  compressed("${doc}/changelog")
  file(WRITE "${doc}/changelog.Debian"
    "orrery-dyeworks (${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}) unstable; urgency=medium\n\n"
    "  * What changed is told in changelog.gz.\n\n"
    " -- ${CPACK_PACKAGE_CONTACT}  ${date}\n")
  compressed("${doc}/changelog.Debian")

  file(GLOB_RECURSE pages "${share}/man/*.1")
  foreach(page IN LISTS pages)
    compressed("${page}")
  endforeach()
  if(IS_DIRECTORY "${share}/zsh/site-functions")
    file(RENAME "${share}/zsh/site-functions" "${share}/zsh/vendor-completions")
  endif()

  # Whatever the umask of whoever packs.
  execute_process(COMMAND find "${root}" -type d -exec chmod 755 {} + COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND find "${share}" -type f -exec chmod 644 {} + COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND find "${root}" -exec touch --no-dereference "--date=@${time}" {} +
    COMMAND_ERROR_IS_FATAL ANY)
endforeach()
