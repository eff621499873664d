#include <TestLibrary.h>

#include "tests/windows/com/TestServer.h"

// Parameters that the library declares as references: whatever is handed over lies in storage of
// its own, which the library may change.
namespace com_tests {
namespace {

using hostlib::DoubleArray;
using hostlib::IntegerArray;
using hostlib::TextArray;
using hostlib::Value;

/// The slots, in the order in which the operations stand.
enum Take {
  kText = 7,
  kFlag,
  kShort,
  kLong,
  kDouble,
  kByte,
  kSingle,
  kChoice,
  kNumber,
  kObject,
  kUnknown,
  kBag,
  kTexts,
  kShorts,
  kLongs,
  kDoubles,
  kVariants,
  kAnything,
  kGivenTexts,
  kGivenBag
};

class References : public ComBench {
 protected:
  References()
      : server_(Install(L"RemarkDivider", __uuidof(::TestReferences), __uuidof(IReferences))),
        bag_(Install(L"ParameterBag", __uuidof(::TestBag), __uuidof(IBag))) {}

  /// The library looks at what it is given, and may change it.
  void Give(Take slot, const Value& value, std::function<void(VARIANT&)> look) {
    bool isSeen = false;
    server_->onCall = [&](const Received& call) {
      isSeen = true;
      look(call.Argument(0));
      return S_OK;
    };
    Made(L"RemarkDivider")->Call(slot, {value});
    EXPECT_TRUE(isSeen);
  }
  hostlib::LibraryError FailureToGive(Take slot, const Value& value) {
    server_->calls.clear();
    const auto error = FailureOf([&] { Made(L"RemarkDivider")->Call(slot, {value}); });
    EXPECT_TRUE(server_->calls.empty());
    return error;
  }
  /// The rows of an array that arrived by reference, each in words.
  static std::vector<std::wstring> Rows(const VARIANT& argument) {
    std::vector<std::wstring> rows;
    if ((argument.vt & VT_BYREF) == 0) return {L"not by reference"};
    SAFEARRAY* const array = *argument.pparray;
    VARTYPE kind = VT_EMPTY;
    LONG lower = 0;
    LONG upper = -1;
    SafeArrayGetVartype(array, &kind);
    SafeArrayGetLBound(array, 1, &lower);
    SafeArrayGetUBound(array, 1, &upper);
    EXPECT_EQ(argument.vt, VT_BYREF | VT_ARRAY | kind);
    for (LONG at = lower; at <= upper; ++at) {
      Variant row;
      if (kind == VT_VARIANT) {
        SafeArrayGetElement(array, &at, &row.get());
      } else {
        row.get().vt = kind;
        SafeArrayGetElement(array, &at, &row.get().byref);
      }
      const VARTYPE held = row.type();
      VariantChangeTypeEx(&row.get(), &row.get(), LOCALE_INVARIANT, 0, VT_BSTR);
      rows.push_back(std::to_wstring(at) + L" " + std::to_wstring(held) + L" " + row.get().bstrVal);
    }
    return rows;
  }

  ComPtr<TestObject> server_;
  ComPtr<TestObject> bag_;
};

TEST_F(References, ScalarsGoByReferenceInTheKindThatIsDeclared) {
  Give(kText, Value(L"a"), [](VARIANT& v) {
    ASSERT_EQ(v.vt, VT_BYREF | VT_BSTR);
    EXPECT_STREQ(*v.pbstrVal, L"a");
  });
  Give(kFlag, Value(true), [](VARIANT& v) {
    ASSERT_EQ(v.vt, VT_BYREF | VT_BOOL);
    EXPECT_EQ(*v.pboolVal, VARIANT_TRUE);
  });
  Give(kShort, Value(std::int16_t{-7}), [](VARIANT& v) {
    ASSERT_EQ(v.vt, VT_BYREF | VT_I2);
    EXPECT_EQ(*v.piVal, -7);
  });
  Give(kLong, Value(std::int16_t{-7}), [](VARIANT& v) {
    ASSERT_EQ(v.vt, VT_BYREF | VT_I4);
    EXPECT_EQ(*v.plVal, -7);
  });
  Give(kDouble, Value(0.5), [](VARIANT& v) {
    ASSERT_EQ(v.vt, VT_BYREF | VT_R8);
    EXPECT_EQ(*v.pdblVal, 0.5);
  });
  Give(kByte, Value(200), [](VARIANT& v) {
    ASSERT_EQ(v.vt, VT_BYREF | VT_UI1);
    EXPECT_EQ(*v.pbVal, 200);
  });
  Give(kSingle, Value(0.5), [](VARIANT& v) {
    ASSERT_EQ(v.vt, VT_BYREF | VT_R4);
    EXPECT_EQ(*v.pfltVal, 0.5F);
  });
}

TEST_F(References, AChoiceAndATypeOfAnotherNameGoAsWhatTheyAre) {
  Give(kChoice, Value(std::int16_t{2}), [](VARIANT& v) {
    ASSERT_EQ(v.vt, VT_BYREF | VT_I4);
    EXPECT_EQ(*v.plVal, 2);
  });
  Give(kNumber, Value(100000), [](VARIANT& v) {
    ASSERT_EQ(v.vt, VT_BYREF | VT_I4);
    EXPECT_EQ(*v.plVal, 100000);
  });
}

TEST_F(References, AnObjectGoesByReference) {
  const auto bag = Made(L"ParameterBag");
  Give(kObject, Value(bag), [this](VARIANT& v) {
    ASSERT_EQ(v.vt, VT_BYREF | VT_DISPATCH);
    EXPECT_EQ(*v.ppdispVal, static_cast<IDispatch*>(bag_.Get()));
  });
  Give(kUnknown, Value(bag), [this](VARIANT& v) {
    ASSERT_EQ(v.vt, VT_BYREF | VT_UNKNOWN);
    EXPECT_EQ(*v.ppunkVal, static_cast<IUnknown*>(bag_.Get()));
  });
  Give(kBag, Value(bag), [this](VARIANT& v) {
    ASSERT_EQ(v.vt, VT_BYREF | VT_DISPATCH);
    EXPECT_EQ(*v.ppdispVal, static_cast<IDispatch*>(bag_.Get()));
  });
}

TEST_F(References, NoObjectGoesAsAnEmptyReference) {
  for (const Value& nothing : {Value(), Value(hostlib::ObjectPtr())}) {
    Give(kObject, nothing, [](VARIANT& v) {
      ASSERT_EQ(v.vt, VT_BYREF | VT_DISPATCH);
      EXPECT_EQ(*v.ppdispVal, nullptr);
    });
  }
}

TEST_F(References, AnObjectThatTheLibraryExchangesIsLetGo) {
  const auto bag = Made(L"ParameterBag");
  const ULONG before = bag_->references();
  Give(kObject, Value(bag), [this](VARIANT& v) {
    ASSERT_EQ(v.vt, VT_BYREF | VT_DISPATCH);
    (*v.ppdispVal)->Release();
    *v.ppdispVal = nullptr;
    server_.CopyTo(reinterpret_cast<TestObject**>(v.ppdispVal));
  });
  EXPECT_EQ(bag_->references(), before);
  const ULONG serverBefore = server_->references();
  Give(kObject, Value(bag), [](VARIANT&) {});
  EXPECT_EQ(server_->references(), serverBefore);
}

TEST_F(References, AnArrayGoesByReferenceWithItsLowerBound) {
  Give(kTexts, Value(TextArray{{L"a", L"b"}, 1}), [](VARIANT& v) {
    EXPECT_EQ(Rows(v), (std::vector<std::wstring>{L"1 8 a", L"2 8 b"}));
  });
  Give(kShorts, Value(IntegerArray{{3, -4}, 0}), [](VARIANT& v) {
    EXPECT_EQ(Rows(v), (std::vector<std::wstring>{L"0 2 3", L"1 2 -4"}));
  });
  Give(kDoubles, Value(DoubleArray{{0.5}, 0}),
       [](VARIANT& v) { EXPECT_EQ(Rows(v), (std::vector<std::wstring>{L"0 5 0.5"})); });
}

TEST_F(References, TheRowsOfAnArrayAreOfTheKindThatIsDeclared) {
  Give(kLongs, Value(IntegerArray{{3, -4}, 1}), [](VARIANT& v) {
    EXPECT_EQ(Rows(v), (std::vector<std::wstring>{L"1 3 3", L"2 3 -4"}));
  });
  Give(kVariants, Value(TextArray{{L"a"}, 0}),
       [](VARIANT& v) { EXPECT_EQ(Rows(v), (std::vector<std::wstring>{L"0 8 a"})); });
  Give(kVariants, Value(DoubleArray{{0.5}, 0}),
       [](VARIANT& v) { EXPECT_EQ(Rows(v), (std::vector<std::wstring>{L"0 5 0.5"})); });
  Give(kTexts, Value(IntegerArray{{3}, 0}),
       [](VARIANT& v) { EXPECT_EQ(Rows(v), (std::vector<std::wstring>{L"0 8 3"})); });
  Give(kLongs, Value(IntegerArray{{}, 1}), [](VARIANT& v) { EXPECT_TRUE(Rows(v).empty()); });
}

TEST_F(References, NoArrayGoesAsAnEmptyReference) {
  Give(kTexts, Value(), [](VARIANT& v) {
    ASSERT_EQ(v.vt, VT_BYREF | VT_ARRAY | VT_BSTR);
    EXPECT_EQ(*v.pparray, nullptr);
  });
}

TEST_F(References, AnArrayMayBeExchangedByTheLibrary) {
  Give(kTexts, Value(TextArray{{L"a"}, 0}), [](VARIANT& v) {
    ASSERT_EQ(v.vt, VT_BYREF | VT_ARRAY | VT_BSTR);
    SafeArrayDestroy(*v.pparray);
    *v.pparray = SafeArrayCreateVector(VT_BSTR, 0, 100);
  });
  Give(kTexts, Value(), [](VARIANT& v) {
    ASSERT_EQ(v.vt, VT_BYREF | VT_ARRAY | VT_BSTR);
    *v.pparray = SafeArrayCreateVector(VT_BSTR, 0, 100);
  });
}

TEST_F(References, AnythingGoesAsAReferenceToAVariantThatHoldsIt) {
  const auto bag = Made(L"ParameterBag");
  Give(kAnything, Value(bag), [this](VARIANT& v) {
    ASSERT_EQ(v.vt, VT_BYREF | VT_VARIANT);
    ASSERT_EQ(v.pvarVal->vt, VT_DISPATCH);
    EXPECT_EQ(v.pvarVal->pdispVal, static_cast<IDispatch*>(bag_.Get()));
    VariantClear(v.pvarVal);
  });
  Give(kAnything, Value(TextArray{{L"a"}, 1}), [](VARIANT& v) {
    ASSERT_EQ(v.pvarVal->vt, VT_ARRAY | VT_BSTR);
    VariantClear(v.pvarVal);
    v.pvarVal->vt = VT_I2;
  });
}

TEST_F(References, WhatIsDeclaredAsAValueGoesAsOne) {
  Give(kGivenTexts, Value(TextArray{{L"a"}, 1}),
       [](VARIANT& v) { ASSERT_EQ(v.vt, VT_ARRAY | VT_BSTR); });
  Give(kGivenBag, Value(Made(L"ParameterBag")), [](VARIANT& v) { ASSERT_EQ(v.vt, VT_DISPATCH); });
}

TEST_F(References, WhatDoesNotFitIsNamedAndNotSent) {
  EXPECT_EQ(FailureToGive(kObject, Value(L"no object")).number(), DISP_E_TYPEMISMATCH);
  EXPECT_EQ(FailureToGive(kTexts, Value(L"no array")).number(), DISP_E_TYPEMISMATCH);
  EXPECT_EQ(FailureToGive(kLongs, Value(TextArray{{L"no number"}, 0})).number(),
            DISP_E_TYPEMISMATCH);
  const auto error = FailureToGive(kText, Value(TextArray{{L"no text"}, 0}));
  EXPECT_EQ(error.number(), DISP_E_TYPEMISMATCH);
  EXPECT_TRUE(error.description().starts_with(L"Argument 1: "));
  EXPECT_EQ(error.outcome(), hostlib::LibraryError::Outcome::kNotSent);
}

TEST_F(References, ObjectsAndArraysThatComeByReferenceAreRead) {
  IDispatch* object = bag_.Get();
  IUnknown* unknown = bag_.Get();
  SAFEARRAY* array = SafeArrayCreateVector(VT_BSTR, 1, 1);
  LONG at = 1;
  SafeArrayPutElement(array, &at, Bstr(L"a").get());
  VARIANT held = {};
  held.vt = VT_BYREF | VT_ARRAY | VT_BSTR;
  held.pparray = &array;
  const auto got = [this](std::function<void(VARIANT&)> fill) {
    bag_->Answer(std::move(fill));
    return Made(L"ParameterBag")->Call(8, {Value(L"key")});
  };
  const ULONG before = bag_->references();
  EXPECT_TRUE(got([&](VARIANT& v) {
                v.vt = VT_BYREF | VT_DISPATCH;
                v.ppdispVal = &object;
              }).IsObject());
  EXPECT_TRUE(got([&](VARIANT& v) {
                v.vt = VT_BYREF | VT_UNKNOWN;
                v.ppunkVal = &unknown;
              }).IsObject());
  EXPECT_EQ(bag_->references(), before);
  EXPECT_EQ(got([&](VARIANT& v) { v = held; }), Value(TextArray{{L"a"}, 1}));
  EXPECT_EQ(got([&](VARIANT& v) {
              v.vt = VT_BYREF | VT_VARIANT;
              v.pvarVal = &held;
            }),
            Value(TextArray{{L"a"}, 1}));
  SafeArrayDestroy(array);
}

}  // namespace
}  // namespace com_tests
