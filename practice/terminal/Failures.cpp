#include "practice/terminal/Failures.h"

#include <new>

#include "hostlib/Object.h"
#include "practice/terminal/TypeLibrary.h"

namespace practice::terminal {
namespace {

constexpr wchar_t kSource[] = L"Practice library";

}  // namespace

HRESULT Raise(HRESULT number, const std::wstring& source, const std::wstring& text) noexcept {
  ComPtr<ICreateErrorInfo> writer;
  ComPtr<IErrorInfo> information;
  if (SUCCEEDED(CreateErrorInfo(&writer)) && SUCCEEDED(writer.As(&information))) {
    writer->SetGUID(GUID_NULL);
    // The strings are copied.
    writer->SetSource(const_cast<wchar_t*>(source.c_str()));
    writer->SetDescription(const_cast<wchar_t*>(text.c_str()));
    SetErrorInfo(0, information.Get());
  }
  return FAILED(number) ? number : E_FAIL;
}

HRESULT Guarded(const std::function<void()>& body) noexcept {
  try {
    SetErrorInfo(0, nullptr);
    body();
    return S_OK;
  } catch (const hostlib::LibraryError& error) {
    return Raise(error.number(), error.source(), error.description());
  } catch (const common::RunTimeError& error) {
    return Raise(E_FAIL, kSource, error.description());
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (...) {
    return E_UNEXPECTED;
  }
}

}  // namespace practice::terminal
