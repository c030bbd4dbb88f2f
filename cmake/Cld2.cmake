# `lexiform_cld2`: the Compact Language Detector 2 with its larger tables. Those are a library of data alone, whose
# symbols stand in for the smaller tables in the library of code as long as it is linked before that, needed by name
# or not.
find_path(CLD2_INCLUDE_DIR cld2/public/compact_lang_det.h REQUIRED)
find_library(CLD2_LIBRARY cld2 REQUIRED)
find_library(CLD2_TABLES_LIBRARY cld2_full REQUIRED)
add_library(lexiform_cld2 INTERFACE)
target_include_directories(lexiform_cld2 SYSTEM INTERFACE $<BUILD_INTERFACE:${CLD2_INCLUDE_DIR}>)
target_link_libraries(lexiform_cld2 INTERFACE
  "-Wl,--push-state,--no-as-needed,${CLD2_TABLES_LIBRARY},--pop-state" ${CLD2_LIBRARY})
