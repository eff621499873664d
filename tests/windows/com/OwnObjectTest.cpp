#include <TestLibrary.h>

#include "hostlib/com/OwnObject.h"
#include "tests/windows/com/TestServer.h"

namespace com_tests {
namespace {

using hostlib::Arguments;
using hostlib::LibraryError;
using hostlib::Value;

/// An object of the program, as the library gets to see it.
class Own : public hostlib::Object {
 public:
  explicit Own(std::wstring className) : className_(std::move(className)) {}
  std::wstring_view ClassName() const override { return className_; }
  Value Call(int slot, const Arguments& arguments) override {
    if (slot == 7) return Value(L"the caption");
    if (slot == 8) return arguments.empty() ? Value(L"") : Value(arguments.front());
    if (slot == 9) throw std::bad_alloc();
    if (slot == 10) throw LibraryError(42, L"program", L"not now");
    throw LibraryError(DISP_E_MEMBERNOTFOUND, L"program", L"Member not found");
  }
  hostlib::ObjectPtr Interface(int) override { return nullptr; }

 private:
  std::wstring className_;
};

class OwnObject : public ComBench {
 protected:
  HRESULT Named(const wchar_t* name, DISPID& id) {
    std::wstring copy(name);
    wchar_t* names[] = {copy.data()};
    return outward_->GetIDsOfNames(IID_NULL, names, 1, 0, &id);
  }
  HRESULT Invoke(DISPID member, Variant& result, std::vector<VARIANT> arguments = {},
                 WORD kind = DISPATCH_PROPERTYGET) {
    DISPPARAMS parameters{arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
    return outward_->Invoke(member, IID_NULL, 0, kind, &parameters, &result.get(), &exception_,
                            nullptr);
  }

  std::shared_ptr<Own> own_ = std::make_shared<Own>(L"frmWorking");
  ComPtr<IDispatch> outward_ = library_.Outward(own_);
  EXCEPINFO exception_{};
};

TEST_F(OwnObject, AnswersByName) {
  DISPID id = 0;
  ASSERT_EQ(Named(L"caption", id), S_OK);
  Variant result;
  ASSERT_EQ(Invoke(id, result), S_OK);
  EXPECT_EQ(result.type(), VT_BSTR);
  EXPECT_STREQ(result.get().bstrVal, L"the caption");
}

TEST_F(OwnObject, TheApplicationHasTitlePathAndInstance) {
  const auto application = std::make_shared<Own>(L"Application");
  outward_ = library_.Outward(application);
  const std::vector<const wchar_t*> names{L"Title", L"Path", L"Instance"};
  for (std::size_t i = 0; i < names.size(); ++i) {
    DISPID id = 0;
    EXPECT_EQ(Named(names[i], id), S_OK);
    EXPECT_EQ(id, static_cast<DISPID>(7 + i));
  }
}

TEST_F(OwnObject, HasNoOtherNames) {
  DISPID id = 0;
  EXPECT_EQ(Named(L"Visible", id), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(id, DISPID_UNKNOWN);
}

TEST_F(OwnObject, AnswersBySlotWithArgumentsInTheWrittenOrder) {
  Variant text;
  text.get().bstrVal = Bstr(L"first").Release();
  text.get().vt = VT_BSTR;
  Variant number;
  number.get().vt = VT_I2;
  Variant result;
  ASSERT_EQ(Invoke(8, result, {number.get(), text.get()}), S_OK);
  EXPECT_STREQ(result.get().bstrVal, L"first");
}

TEST_F(OwnObject, CanNotBeWritten) {
  Variant result;
  EXPECT_EQ(Invoke(7, result, {}, DISPATCH_PROPERTYPUT), DISP_E_MEMBERNOTFOUND);
}

TEST_F(OwnObject, NoExceptionLeavesIt) {
  Variant result;
  EXPECT_EQ(Invoke(9, result), E_UNEXPECTED);
  EXPECT_EQ(Invoke(99, result), DISP_E_MEMBERNOTFOUND);
}

TEST_F(OwnObject, ItsFailureIsTheLibrarysToRead) {
  Variant result;
  ASSERT_EQ(Invoke(10, result), DISP_E_EXCEPTION);
  EXPECT_EQ(exception_.scode, 42);
  EXPECT_STREQ(exception_.bstrDescription, L"not now");
  SysFreeString(exception_.bstrSource);
  SysFreeString(exception_.bstrDescription);
}

TEST_F(OwnObject, IsGoneForTheLibraryWhenTheProgramLetsGo) {
  own_ = nullptr;
  DISPID id = 0;
  Variant result;
  EXPECT_EQ(Named(L"Caption", id), CO_E_OBJNOTCONNECTED);
  EXPECT_EQ(Invoke(7, result), CO_E_OBJNOTCONNECTED);
}

TEST_F(OwnObject, IsCalledBackByTheLibraryInsideACall) {
  const auto change = Install(L"PnrElementChange", __uuidof(::TestChange), __uuidof(IChange));
  std::wstring seen;
  change->onCall = [&](const Received& call) {
    EXPECT_EQ(call.Argument(0).vt, VT_DISPATCH);
    outward_ = call.Argument(0).pdispVal;
    Variant result;
    EXPECT_EQ(Invoke(7, result), S_OK);
    seen = result.get().bstrVal;
    return S_OK;
  };
  Made(L"PnrElementChange")->Call(7, {Value(hostlib::ObjectPtr(own_))});
  EXPECT_EQ(seen, L"the caption");
}

}  // namespace
}  // namespace com_tests
