#include <gtest/gtest.h>

#include "hostlib/com/CallOutcome.h"
// clang-format off
#include <windows.h>
#include <rpc.h>
// clang-format on

namespace com_tests {
namespace {

using Outcome = hostlib::LibraryError::Outcome;

Outcome OutcomeOf(HRESULT result) {
  return hostlib::com::OutcomeOf(static_cast<std::uint32_t>(result));
}

std::string Named(HRESULT result) {
  char text[16] = "";
  std::snprintf(text, sizeof text, "0x%08lX", static_cast<unsigned long>(result));
  return text;
}

void AllHave(Outcome outcome, std::initializer_list<HRESULT> results) {
  for (const HRESULT result : results) EXPECT_EQ(OutcomeOf(result), outcome) << Named(result);
}
void AllOfTheSystemHave(Outcome outcome, std::initializer_list<long> codes) {
  for (const long code : codes) {
    const HRESULT result = HRESULT_FROM_WIN32(code);
    EXPECT_EQ(OutcomeOf(result), outcome) << Named(result);
  }
}

TEST(CallOutcome, AServerThatWasNotReachedHasNotGotTheCall) {
  AllHave(Outcome::kNotSent,
          {RPC_E_CALL_REJECTED, RPC_E_CANTPOST_INSENDCALL, RPC_E_CANTCALLOUT_INASYNCCALL,
           RPC_E_CANTCALLOUT_INEXTERNALCALL, RPC_E_CLIENT_CANTMARSHAL_DATA, RPC_E_CANTCALLOUT_AGAIN,
           RPC_E_SERVER_DIED_DNE, RPC_E_DISCONNECTED, RPC_E_SERVERCALL_RETRYLATER,
           RPC_E_SERVERCALL_REJECTED, RPC_E_CANTCALLOUT_ININPUTSYNCCALL, RPC_E_WRONG_THREAD,
           RPC_E_THREAD_NOT_INIT, RPC_E_INVALID_IPID, RPC_E_INVALID_OBJECT, CO_E_NOTINITIALIZED,
           CO_E_OBJNOTCONNECTED, CO_E_SERVER_EXEC_FAILURE, CO_E_SERVER_STOPPING});
  AllOfTheSystemHave(
      Outcome::kNotSent,
      {RPC_S_INVALID_BINDING, RPC_S_UNKNOWN_IF, RPC_S_SERVER_UNAVAILABLE, RPC_S_SERVER_TOO_BUSY,
       RPC_S_CALL_FAILED_DNE, EPT_S_NOT_REGISTERED, OR_INVALID_OXID, OR_INVALID_OID});
}

TEST(CallOutcome, WhateverElseTheLinkSaysTheCallMayHaveBeenMade) {
  AllHave(Outcome::kInterrupted,
          {RPC_E_CALL_CANCELED, RPC_E_CONNECTION_TERMINATED, RPC_E_SERVER_DIED,
           RPC_E_INVALID_DATAPACKET, RPC_E_CANTTRANSMIT_CALL, RPC_E_CLIENT_CANTUNMARSHAL_DATA,
           RPC_E_SERVER_CANTMARSHAL_DATA, RPC_E_SYS_CALL_FAILED, RPC_E_OUT_OF_RESOURCES,
           RPC_E_FAULT, RPC_E_SERVERFAULT, RPC_E_INVALID_HEADER, RPC_E_TIMEOUT, RPC_E_UNEXPECTED});
  AllOfTheSystemHave(Outcome::kInterrupted, {RPC_S_INVALID_STRING_BINDING,
                                             RPC_S_CALL_FAILED,
                                             RPC_S_PROTOCOL_ERROR,
                                             RPC_S_OUT_OF_RESOURCES,
                                             RPC_S_INTERNAL_ERROR,
                                             RPC_S_ADDRESS_ERROR,
                                             RPC_S_FP_OVERFLOW,
                                             RPC_X_NO_MORE_ENTRIES,
                                             RPC_X_NULL_REF_POINTER,
                                             RPC_X_BAD_STUB_DATA,
                                             RPC_S_CALL_IN_PROGRESS,
                                             RPC_S_NO_MORE_BINDINGS,
                                             RPC_S_NO_INTERFACES,
                                             RPC_S_CALL_CANCELLED,
                                             RPC_S_COMM_FAILURE,
                                             RPC_S_SEC_PKG_ERROR,
                                             RPC_X_WRONG_STUB_VERSION,
                                             RPC_X_WRONG_PIPE_VERSION,
                                             RPC_S_GROUP_MEMBER_NOT_FOUND,
                                             RPC_S_INVALID_OBJECT,
                                             RPC_S_SEND_INCOMPLETE,
                                             RPC_X_PIPE_EMPTY,
                                             RPC_S_ENTRY_TYPE_MISMATCH,
                                             RPC_S_GRP_ELT_NOT_REMOVED});
}

TEST(CallOutcome, WhatTheLibraryAnswersIsItsRefusal) {
  AllHave(Outcome::kRefused, {E_FAIL, E_OUTOFMEMORY, E_NOTIMPL, E_INVALIDARG, E_ACCESSDENIED,
                              DISP_E_TYPEMISMATCH, DISP_E_BADPARAMCOUNT, DISP_E_MEMBERNOTFOUND,
                              MK_E_UNAVAILABLE, static_cast<HRESULT>(0x80040903)});
  // The neighbours of the link's own numbers.
  AllOfTheSystemHave(Outcome::kRefused,
                     {1699, ERROR_INVALID_USER_BUFFER, ERROR_NO_TRUST_LSA_SECRET,
                      ERROR_TRUSTED_RELATIONSHIP_FAILURE, 1792, 1805, 1807, 1816, 1837, 1897, 1901,
                      ERROR_CANT_ACCESS_FILE, ERROR_CANT_RESOLVE_FILENAME, 1930});
}

}  // namespace
}  // namespace com_tests
