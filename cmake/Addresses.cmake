# Where the maker of a build is on the web. The host of these values does not exist: a check for updates that
# asks it ends without a word.
set(LEXIFORM_UPDATE_MANIFEST "https://lexiform.example/versions.plist" CACHE STRING
  "HTTPS address of the property list that names the current version")
set(LEXIFORM_DOWNLOAD_BASE "https://lexiform.example/download/" CACHE STRING
  "HTTPS address, with a slash at its end, that the address of a download must contain")
set(LEXIFORM_UPDATES_PAGE "https://lexiform.example/updates" CACHE STRING "Address of the page of updates")
set(LEXIFORM_SUPPORT_PAGE "https://lexiform.example/support" CACHE STRING "Address of the support page")

# What arrives without encryption may come from anybody.
foreach(address LEXIFORM_UPDATE_MANIFEST LEXIFORM_DOWNLOAD_BASE)
  if(NOT ${address} MATCHES "^https://")
    message(FATAL_ERROR "${address} is no HTTPS address: ${${address}}")
  endif()
endforeach()
