# The libraries the package layer needs, for a Windows build: Debian ships them for Linux only, so
# they are built here from Debian's own source packages (checked against the archive's SHA-256),
# except zlib, which Debian ships for mingw-w64 (libz-mingw-w64-dev).
include(FetchContent)
set(debian_pool http://deb.debian.org/debian/pool/main)

# Static, as everything is: a program needs no DLL beside it.
set(ZLIB_USE_STATIC_LIBS ON)
find_package(ZLIB REQUIRED)
# libzip's CMake predates the visibility policy; its targets take the new behaviour.
set(CMAKE_POLICY_DEFAULT_CMP0063 NEW)

set(PUGIXML_NO_EXCEPTIONS OFF CACHE BOOL "" FORCE)
set(BUILD_SHARED_LIBS OFF CACHE BOOL "" FORCE)
FetchContent_Declare(pugixml
  URL ${debian_pool}/p/pugixml/pugixml_1.13.orig.tar.gz
  URL_HASH SHA256=5c5ad5d7caeb791420408042a7d88c2c6180781bf218feca259fd9d840a888e1)

set(FMT_INSTALL OFF CACHE BOOL "" FORCE)
set(FMT_TEST OFF CACHE BOOL "" FORCE)
set(FMT_DOC OFF CACHE BOOL "" FORCE)
FetchContent_Declare(fmt
  URL ${debian_pool}/f/fmtlib/fmtlib_9.1.0+ds1.orig.tar.gz
  URL_HASH SHA256=84ce1c2d0be3a9863935137969dcec6970125caac032f82474640bfc81463583)

FetchContent_Declare(libdeflate
  URL ${debian_pool}/libd/libdeflate/libdeflate_1.14.orig.tar.gz
  URL_HASH SHA256=89e7df898c37c3427b0f39aadcf733731321a278771d20fc553f92da8d4808ac)

# libzip reads the packages; it needs no compression library beyond zlib, no encryption (it says
# so at configure time) and no tools.
foreach(option ENABLE_COMMONCRYPTO ENABLE_GNUTLS ENABLE_MBEDTLS ENABLE_OPENSSL ENABLE_WINDOWS_CRYPTO ENABLE_BZIP2
               ENABLE_LZMA ENABLE_ZSTD BUILD_TOOLS BUILD_REGRESS BUILD_EXAMPLES BUILD_DOC)
  set(${option} OFF CACHE BOOL "" FORCE)
endforeach()
FetchContent_Declare(libzip
  URL ${debian_pool}/libz/libzip/libzip_1.7.3.orig.tar.xz
  URL_HASH SHA256=a60473ffdb7b4260c08bfa19c2ccea0438edac11193c3afbbb1f17fbcf6c6132)

FetchContent_MakeAvailable(pugixml fmt libdeflate libzip)

# This libdeflate comes with a Makefile only: its library is its C sources and the x86 ones.
enable_language(C)
file(GLOB libdeflate_sources ${libdeflate_SOURCE_DIR}/lib/*.c ${libdeflate_SOURCE_DIR}/lib/x86/*.c)
add_library(vos_libdeflate STATIC ${libdeflate_sources})
target_include_directories(vos_libdeflate SYSTEM PUBLIC ${libdeflate_SOURCE_DIR})

# Their own warnings are their maintainers' business; the project's code keeps its warnings at zero.
foreach(target zip vos_libdeflate pugixml-static fmt)
  target_compile_options(${target} PRIVATE -w)
endforeach()

set(vos_dependencies zip vos_libdeflate ZLIB::ZLIB pugixml::pugixml fmt::fmt)

# GoogleTest, for the test programs that run under Wine.
if(VOS_BUILD_WINDOWS_TEST_PROGRAMS)
  set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
  set(BUILD_GMOCK OFF CACHE BOOL "" FORCE)
  FetchContent_Declare(googletest
    URL ${debian_pool}/g/googletest/googletest_1.12.1.orig.tar.gz
    URL_HASH SHA256=81964fe578e9bd7c94dfdb09c8e4d6e6759e19967e397dbea48d1c10e45d0df2)
  FetchContent_MakeAvailable(googletest)
  target_compile_options(gtest PRIVATE -w)
endif()
