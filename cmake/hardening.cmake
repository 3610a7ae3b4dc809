# The hardening flags of the distribution, for everything that is built; the sanitizers watch more closely, and their build
# and that of the fuzzer go without.
if(NOT ZELKO_SANITIZE AND NOT ZELKO_FUZZ)
  add_compile_options(-fstack-protector-strong -fstack-clash-protection -Wformat -Werror=format-security
    $<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE> $<$<NOT:$<CONFIG:Debug>>:-D_FORTIFY_SOURCE=2>)
  add_link_options(-Wl,-z,relro -Wl,-z,now)
  include(CheckPIESupported)
  check_pie_supported(LANGUAGES CXX)
  set(CMAKE_POSITION_INDEPENDENT_CODE ON)
endif()
