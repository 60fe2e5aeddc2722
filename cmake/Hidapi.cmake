# The hidapi header for the transport layer, and the library that only the executable links: on Linux the hidraw
# flavour, on Windows the DLL. Kept shared on purpose, so that the virtual panel's drop-in can take its place.
find_path(HIDAPI_INCLUDE_DIR hidapi.h PATH_SUFFIXES hidapi REQUIRED)
find_library(HIDAPI_LIBRARY NAMES hidapi-hidraw hidapi REQUIRED)

add_library(hidapi_headers INTERFACE)
target_include_directories(hidapi_headers SYSTEM INTERFACE ${HIDAPI_INCLUDE_DIR})
