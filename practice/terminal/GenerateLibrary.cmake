# generate_library(FOLDER [WITHOUT OPERATION] [WITH_MORE OPERATION]): writes VantelPractice.idl and
# LibraryClasses.inc into a folder, from Library.cmake. A library that does not fit lacks an
# operation, the last of its interface, or has one that takes an argument more; OPERATION is
# OBJECT.NAME.

function(id_of what result)
  set(namespace 9d3f5c0a-7f0e-4b57-9f43-0c6d3d0a4e21)  # names become ids under this one
  string(UUID id NAMESPACE ${namespace} NAME "${what}" TYPE SHA1)
  set(${result} ${id} PARENT_SCOPE)
endfunction()

macro(object name)
  finish_object()
  set(object_name ${name})
  set(object_kind "${ARGN}")
  set(interface_number 0)
  set(object_interfaces "")
  set(object_makers "")
  next_interface()
endmacro()

macro(finish_object)
  if(object_name)
    finish_interface()
    id_of("class ${object_name}" id)
    set(attribute "")
    set(use kOrdinary)
    if(object_kind STREQUAL noncreatable)
      set(use kNonCreatable)
    elseif(object_kind STREQUAL hidden)
      set(use kHidden)
    endif()
    if(object_kind)
      set(attribute ", ${object_kind}")
    endif()
    string(APPEND idl_classes "  [uuid(${id})${attribute}]\n  coclass ${object_name}\n  {\n"
                              "${object_interfaces}  };\n\n")
    string(APPEND cpp_classes "    {L\"${object_name}\", __uuidof(::${object_name}), ClassUse::${use},\n"
                              "     {${object_makers}}},\n")
  endif()
endmacro()

macro(next_interface)
  if(interface_number GREATER 0)
    finish_interface()
  endif()
  math(EXPR interface_number "${interface_number} + 1")
  set(interface_name I${object_name})
  if(interface_number GREATER 1)
    string(APPEND interface_name ${interface_number})
  endif()
  set(next_slot 7)
  set(idl_body "")
  set(cpp_body "")
endmacro()

macro(finish_interface)
  id_of("interface ${interface_name}" id)
  string(APPEND idl_interfaces
         "  [object, uuid(${id}), dual, oleautomation, pointer_default(unique)]\n"
         "  interface ${interface_name} : IDispatch\n  {\n${idl_body}  }\n\n")
  string(APPEND cpp_interfaces
         "class ${object_name}Part${interface_number} final : public Dual<${interface_name}> {\n"
         " public:\n  using Dual::Dual;\n${cpp_body}};\n\n")
  set(default "")
  if(interface_number EQUAL 1)
    set(default "[default] ")
  endif()
  string(APPEND object_interfaces "    ${default}interface ${interface_name};\n")
  if(object_makers)
    string(APPEND object_makers ", ")
  endif()
  string(APPEND object_makers "PartOf<${object_name}Part${interface_number}, ${interface_name}>()")
endmacro()

macro(placeholders_up_to slot)
  while(next_slot LESS ${slot})
    member_id(${next_slot})
    string(APPEND idl_body "    [id(${member}), hidden] HRESULT Unused${next_slot}();\n")
    string(APPEND cpp_body "  HRESULT STDMETHODCALLTYPE Unused${next_slot}() override "
                           "{ return E_NOTIMPL; }\n")
    math(EXPR next_slot "${next_slot} + 1")
  endwhile()
endmacro()

# Not the slot itself, so that nobody mistakes the one for the other.
macro(member_id slot)
  math(EXPR member "0x60020000 + ${slot} - 7" OUTPUT_FORMAT HEXADECIMAL)
endmacro()

macro(operation slot name arguments)
  set(operation_name ${object_name}.${name})
  set(taken "${arguments}")
  if(operation_name STREQUAL GENERATED_WITH_MORE)
    string(APPEND taken ", long more")
  endif()
  if(NOT operation_name STREQUAL GENERATED_WITHOUT)
    member_id(${slot})
    write_member(${slot} ${name} ${slot} "id(${member})" "${taken}" "${ARGN}")
  endif()
endmacro()

macro(list_items slot name result)
  write_member(${slot} ${name} hostlib::kDefaultMember "id(0), propget" "" "${result}")
endmacro()

macro(write_member slot name called attributes arguments result)
  placeholders_up_to(${slot})
  set(idl_arguments "")
  set(cpp_arguments "")
  set(passed "")
  string(REPLACE ", " ";" list "${arguments}")
  foreach(argument IN LISTS list)
    string(REGEX REPLACE "^optional " "" plain "${argument}")
    string(REGEX REPLACE ".* " "" argument_name "${plain}")
    if(plain STREQUAL argument)
      list(APPEND idl_arguments "[in] ${plain}")
    else()
      list(APPEND idl_arguments "[in, optional] ${plain}")
    endif()
    list(APPEND cpp_arguments "${plain}")
    list(APPEND passed ${argument_name})
  endforeach()
  set(method ${name})
  if("${attributes}" MATCHES "propget")
    set(method get_${name})
  endif()
  if("${result}" STREQUAL "")
    list(PREPEND passed "kNoResult")
  else()
    list(APPEND idl_arguments "[out, retval] ${result}* result")
    list(APPEND cpp_arguments "${result}* result")
    list(PREPEND passed "result")
  endif()
  list(PREPEND passed "${called}")
  list(JOIN idl_arguments ", " idl_arguments)
  list(JOIN cpp_arguments ", " cpp_arguments)
  list(JOIN passed ", " passed)
  string(APPEND idl_body "    [${attributes}] HRESULT ${name}(${idl_arguments});\n")
  string(APPEND cpp_body "  HRESULT STDMETHODCALLTYPE ${method}(${cpp_arguments}) override {\n"
                         "    return Forward(${passed});\n  }\n")
  math(EXPR next_slot "${slot} + 1")
endmacro()

function(generate_library folder)
  cmake_parse_arguments(GENERATED "" "WITHOUT;WITH_MORE" "" ${ARGN})
  foreach(text idl_interfaces idl_classes cpp_interfaces cpp_classes object_name)
    set(${text} "")
  endforeach()
  include(${CMAKE_CURRENT_FUNCTION_LIST_DIR}/Library.cmake)
  finish_object()
  id_of("library" id)
  file(CONFIGURE OUTPUT ${folder}/VantelPractice.idl CONTENT [[
import "oaidl.idl";

[uuid(@id@), version(1.0), helpstring("Vantel practice terminal")]
library VantelPractice
{
  importlib("stdole2.tlb");

@idl_interfaces@@idl_classes@};
]] @ONLY)
  file(CONFIGURE OUTPUT ${folder}/LibraryClasses.inc CONTENT [[
@cpp_interfaces@const LibraryClass kLibraryClasses[] = {
@cpp_classes@};
]] @ONLY)
endfunction()
