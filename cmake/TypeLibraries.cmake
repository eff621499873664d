# What type libraries are compiled with: the compiler, the headers it reads and the system's own
# types. Their offsets are as wide as the pointers of the programs that are built.
find_program(WIDL NAMES ${PTA_PROCESSOR}-w64-mingw32-widl widl REQUIRED)
find_path(WIDL_INCLUDES oaidl.idl PATHS /usr/include/wine/wine/windows REQUIRED
          NO_CMAKE_FIND_ROOT_PATH)
# The system's types serve both widths: only names are taken from them.
find_path(
  STANDARD_TYPES stdole2.tlb
  PATHS /usr/lib/x86_64-linux-gnu/wine/x86_64-windows /usr/lib/i386-linux-gnu/wine/i386-windows
  REQUIRED NO_CMAKE_FIND_ROOT_PATH)
math(EXPR own_width "8 * ${CMAKE_SIZEOF_VOID_P}")
math(EXPR other_width "96 - ${own_width}")
set(compile_idl ${WIDL} -I ${WIDL_INCLUDES} -L ${STANDARD_TYPES})
set(COMPILE_IDL ${compile_idl} --win${own_width})
set(UNDATE_TLB ${PROJECT_SOURCE_DIR}/cmake/undate-tlb)
set(COMPILE_IDL_OTHER_WIDTH ${compile_idl} --win${other_width})
