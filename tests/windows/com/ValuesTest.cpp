#include <TestLibrary.h>

#include "tests/windows/com/TestServer.h"

namespace com_tests {
namespace {

using hostlib::DoubleArray;
using hostlib::IntegerArray;
using hostlib::Missing;
using hostlib::TextArray;
using hostlib::Value;

/// Puts values into a bag and takes them out of it.
class Values : public ComBench {
 protected:
  Values() : server_(Install(L"ParameterBag", __uuidof(::TestBag), __uuidof(IBag))) {}

  /// What arrives when the value is handed over.
  void Put(const Value& value, std::function<void(const VARIANT&)> look) {
    bool isSeen = false;
    server_->onCall = [&](const Received& call) {
      isSeen = true;
      const VARIANT& argument = call.Argument(1);
      look(argument.vt == (VT_BYREF | VT_VARIANT) ? *argument.pvarVal : argument);
      return S_OK;
    };
    Made(L"ParameterBag")->Call(7, {Value(L"key"), value});
    EXPECT_TRUE(isSeen);
  }

  /// What the program gets when the library gives the variant.
  Value Got(std::function<void(VARIANT&)> fill) {
    server_->Answer(std::move(fill));
    return Made(L"ParameterBag")->Call(8, {Value(L"key")});
  }

  static void GiveTextArray(VARIANT& answer, std::vector<std::wstring> texts, LONG lower) {
    answer.vt = VT_ARRAY | VT_BSTR;
    answer.parray = SafeArrayCreateVector(VT_BSTR, lower, static_cast<ULONG>(texts.size()));
    for (const std::wstring& text : texts) {
      SafeArrayPutElement(answer.parray, &lower, Bstr(text).get());
      ++lower;
    }
  }
  static void GiveVariants(VARIANT& answer, std::vector<Variant> rows, LONG lower) {
    answer.vt = VT_ARRAY | VT_VARIANT;
    answer.parray = SafeArrayCreateVector(VT_VARIANT, lower, static_cast<ULONG>(rows.size()));
    for (Variant& row : rows) {
      SafeArrayPutElement(answer.parray, &lower, &row.get());
      ++lower;
    }
  }
  static Variant Row(std::wstring_view text) {
    Variant row;
    row.get().bstrVal = Bstr(text).Release();
    row.get().vt = VT_BSTR;
    return row;
  }
  static Variant Row(SHORT number) {
    Variant row;
    row.get().iVal = number;
    row.get().vt = VT_I2;
    return row;
  }
  static Variant Row(double number) {
    Variant row;
    row.get().dblVal = number;
    row.get().vt = VT_R8;
    return row;
  }
  template <typename... Content>
  static std::vector<Variant> Rows(Content... content) {
    std::vector<Variant> rows;
    (rows.push_back(Row(content)), ...);
    return rows;
  }

  ComPtr<TestObject> server_;
};

TEST_F(Values, ABagTakesItsValueByReference) {
  server_->onCall = [](const Received& call) {
    EXPECT_EQ(call.Argument(0).vt, VT_BSTR);
    EXPECT_STREQ(call.Argument(0).bstrVal, L"strKeyPNRElement");
    EXPECT_EQ(call.Argument(1).vt, VT_BYREF | VT_VARIANT);
    EXPECT_STREQ(call.Argument(1).pvarVal->bstrVal, L"ALL");
    return S_OK;
  };
  Made(L"ParameterBag")->Call(7, {Value(L"strKeyPNRElement"), Value(L"ALL")});
  EXPECT_EQ(server_->calls, (std::vector<DISPID>{101}));
}

TEST_F(Values, TextGoesAsItIs) {
  Put(Value(std::wstring(L"a\0b\u00C5", 4)), [](const VARIANT& variant) {
    EXPECT_EQ(variant.vt, VT_BSTR);
    EXPECT_EQ(std::wstring(variant.bstrVal, SysStringLen(variant.bstrVal)),
              std::wstring(L"a\0b\u00C5", 4));
  });
}

TEST_F(Values, TrueGoesAsMinusOne) {
  Put(Value(true), [](const VARIANT& variant) {
    EXPECT_EQ(variant.vt, VT_BOOL);
    EXPECT_EQ(variant.boolVal, -1);
  });
  Put(Value(false), [](const VARIANT& variant) {
    EXPECT_EQ(variant.vt, VT_BOOL);
    EXPECT_EQ(variant.boolVal, 0);
  });
}

TEST_F(Values, IntegersGoInTheirWidth) {
  Put(Value(std::int16_t{-7}), [](const VARIANT& variant) {
    EXPECT_EQ(variant.vt, VT_I2);
    EXPECT_EQ(variant.iVal, -7);
  });
  Put(Value(100000), [](const VARIANT& variant) {
    EXPECT_EQ(variant.vt, VT_I4);
    EXPECT_EQ(variant.lVal, 100000);
  });
}

TEST_F(Values, DoublesAndNothingGo) {
  Put(Value(1.25), [](const VARIANT& variant) {
    EXPECT_EQ(variant.vt, VT_R8);
    EXPECT_EQ(variant.dblVal, 1.25);
  });
  Put(Value(), [](const VARIANT& variant) { EXPECT_EQ(variant.vt, VT_EMPTY); });
}

TEST_F(Values, TextArraysGoWithTheirLowerBound) {
  Put(Value(TextArray{{L"one", L""}, 1}), [](const VARIANT& variant) {
    EXPECT_EQ(variant.vt, VT_ARRAY | VT_BSTR);
    LONG lower = 0;
    LONG upper = 0;
    SafeArrayGetLBound(variant.parray, 1, &lower);
    SafeArrayGetUBound(variant.parray, 1, &upper);
    EXPECT_EQ(lower, 1);
    EXPECT_EQ(upper, 2);
    Bstr row;
    SafeArrayGetElement(variant.parray, &lower, row.Out());
    EXPECT_EQ(row.view(), L"one");
  });
}

TEST_F(Values, NumberArraysGoInTheirWidth) {
  LONG second = 1;
  Put(Value(IntegerArray{{3, -4}, 0}), [&](const VARIANT& variant) {
    EXPECT_EQ(variant.vt, VT_ARRAY | VT_I2);
    SHORT row = 0;
    SafeArrayGetElement(variant.parray, &second, &row);
    EXPECT_EQ(row, -4);
  });
  Put(Value(DoubleArray{{0.5, 2.5}, 0}), [&](const VARIANT& variant) {
    EXPECT_EQ(variant.vt, VT_ARRAY | VT_R8);
    DOUBLE row = 0;
    SafeArrayGetElement(variant.parray, &second, &row);
    EXPECT_EQ(row, 2.5);
  });
}

TEST_F(Values, AnEmptyArrayGoesWithoutRows) {
  Put(Value(TextArray{{}, 1}), [](const VARIANT& variant) {
    LONG upper = -9;
    SafeArrayGetUBound(variant.parray, 1, &upper);
    EXPECT_EQ(upper, 0);
  });
}

TEST_F(Values, AnObjectOfTheLibraryGoesAsItself) {
  const auto bag = Made(L"ParameterBag");
  Put(Value(bag), [this](const VARIANT& variant) {
    EXPECT_EQ(variant.vt, VT_DISPATCH);
    EXPECT_EQ(variant.pdispVal, static_cast<IDispatch*>(server_.Get()));
  });
  Put(Value(hostlib::ObjectPtr()), [](const VARIANT& variant) {
    EXPECT_EQ(variant.vt, VT_DISPATCH);
    EXPECT_EQ(variant.pdispVal, nullptr);
  });
}

TEST_F(Values, WhatIsLeftOutGoesAsAMissingArgument) {
  const auto queue = Install(L"QueueRequest", __uuidof(::TestQueue), __uuidof(IQueue));
  queue->onCall = [](const Received& call) {
    for (const UINT index : {1U, 2U}) {
      EXPECT_EQ(call.Argument(index).vt, VT_ERROR);
      EXPECT_EQ(call.Argument(index).scode, DISP_E_PARAMNOTFOUND);
    }
    return S_OK;
  };
  Made(L"QueueRequest")->Call(8, {Value(L"response"), Missing{}, Missing{}});
  EXPECT_EQ(queue->calls, (std::vector<DISPID>{702}));
}

TEST_F(Values, ATextByReferenceMayBeChangedByTheLibrary) {
  const auto queue = Install(L"QueueRequest", __uuidof(::TestQueue), __uuidof(IQueue));
  queue->onCall = [](const Received& call) {
    EXPECT_EQ(call.Argument(0).vt, VT_BYREF | VT_BSTR);
    EXPECT_STREQ(*call.Argument(0).pbstrVal, L"mine");
    SysReAllocString(call.Argument(0).pbstrVal, L"longer than it was before");
    return S_OK;
  };
  Made(L"QueueRequest")->Call(7, {Value(L"mine")});
  EXPECT_EQ(queue->calls.size(), 1U);
}

TEST_F(Values, AReferenceOfAnotherKindIsConverted) {
  const auto queue = Install(L"QueueRequest", __uuidof(::TestQueue), __uuidof(IQueue));
  queue->onCall = [](const Received& call) {
    EXPECT_EQ(call.Argument(0).vt, VT_BYREF | VT_BSTR);
    EXPECT_STREQ(*call.Argument(0).pbstrVal, L"80");
    return S_OK;
  };
  Made(L"QueueRequest")->Call(7, {Value(80)});
  EXPECT_EQ(queue->calls.size(), 1U);
}

TEST_F(Values, EveryScalarComesBack) {
  EXPECT_EQ(Got([](VARIANT& v) {
              v.vt = VT_BSTR;
              v.bstrVal = SysAllocStringLen(L"a\0b", 3);
            }),
            Value(std::wstring(L"a\0b", 3)));
  EXPECT_EQ(Got([](VARIANT& v) {
              v.vt = VT_BOOL;
              v.boolVal = VARIANT_TRUE;
            }),
            Value(true));
  EXPECT_EQ(Got([](VARIANT& v) {
              v.vt = VT_I2;
              v.iVal = -2;
            }),
            Value(std::int16_t{-2}));
  EXPECT_EQ(Got([](VARIANT& v) {
              v.vt = VT_I4;
              v.lVal = 70000;
            }),
            Value(70000));
  EXPECT_EQ(Got([](VARIANT& v) {
              v.vt = VT_R8;
              v.dblVal = 0.125;
            }),
            Value(0.125));
  EXPECT_EQ(Got([](VARIANT& v) { v.vt = VT_EMPTY; }), Value());
  EXPECT_EQ(Got([](VARIANT& v) { v.vt = VT_NULL; }), Value());
  EXPECT_EQ(Got([](VARIANT& v) {
              v.vt = VT_ERROR;
              v.scode = DISP_E_PARAMNOTFOUND;
            }),
            Value(Missing{}));
}

TEST_F(Values, OtherNumbersComeBackInTheNextWidth) {
  EXPECT_EQ(Got([](VARIANT& v) {
              v.vt = VT_UI1;
              v.bVal = 200;
            }),
            Value(std::int16_t{200}));
  EXPECT_EQ(Got([](VARIANT& v) {
              v.vt = VT_UI4;
              v.ulVal = 4000000000UL;
            }),
            Value(4000000000.0));
  EXPECT_EQ(Got([](VARIANT& v) {
              v.vt = VT_CY;
              v.cyVal.int64 = 12500;
            }),
            Value(1.25));
}

TEST_F(Values, ANullTextIsAnEmptyText) {
  EXPECT_EQ(Got([](VARIANT& v) {
              v.vt = VT_BSTR;
              v.bstrVal = nullptr;
            }),
            Value(L""));
}

TEST_F(Values, AValueByReferenceComesBack) {
  Variant holder = Row(L"held");
  EXPECT_EQ(Got([&](VARIANT& v) {
              v.vt = VT_BYREF | VT_VARIANT;
              v.pvarVal = &holder.get();
            }),
            Value(L"held"));
  EXPECT_EQ(Got([&](VARIANT& v) {
              v.vt = VT_BYREF | VT_BSTR;
              v.pbstrVal = &holder.get().bstrVal;
            }),
            Value(L"held"));
}

TEST_F(Values, ArraysComeBackWithTheirLowerBound) {
  EXPECT_EQ(Got([](VARIANT& v) {
              GiveTextArray(v, {L"a", L"", L"c"}, 1);
            }),
            Value(TextArray{{L"a", L"", L"c"}, 1}));
  EXPECT_EQ(Got([](VARIANT& v) {
              v.vt = VT_ARRAY | VT_I2;
              v.parray = SafeArrayCreateVector(VT_I2, 1, 2);
              LONG at = 2;
              SHORT row = 9;
              SafeArrayPutElement(v.parray, &at, &row);
            }),
            Value(IntegerArray{{0, 9}, 1}));
  EXPECT_EQ(Got([](VARIANT& v) {
              v.vt = VT_ARRAY | VT_R8;
              v.parray = SafeArrayCreateVector(VT_R8, 0, 1);
              LONG at = 0;
              DOUBLE row = 1.5;
              SafeArrayPutElement(v.parray, &at, &row);
            }),
            Value(DoubleArray{{1.5}, 0}));
}

TEST_F(Values, AnArrayOfVariantsIsWhatItsRowsHold) {
  EXPECT_EQ(Got([](VARIANT& v) { GiveVariants(v, Rows(L"a", L"b"), 1); }),
            Value(TextArray{{L"a", L"b"}, 1}));
  EXPECT_EQ(Got([](VARIANT& v) { GiveVariants(v, Rows(SHORT{1}, SHORT{2}), 0); }),
            Value(IntegerArray{{1, 2}, 0}));
  EXPECT_EQ(Got([](VARIANT& v) { GiveVariants(v, Rows(1.0, 2.0), 0); }),
            Value(DoubleArray{{1.0, 2.0}, 0}));
  EXPECT_EQ(Got([](VARIANT& v) { GiveVariants(v, Rows(SHORT{1}, 2.5), 0); }),
            Value(DoubleArray{{1.0, 2.5}, 0}));
}

TEST_F(Values, ARowOfVariantsThatHoldsNothingIsAnEmptyText) {
  EXPECT_EQ(Got([](VARIANT& v) {
              auto rows = Rows(L"a");
              rows.emplace_back();
              GiveVariants(v, std::move(rows), 0);
            }),
            Value(TextArray{{L"a", L""}, 0}));
}

TEST_F(Values, AnArrayOfVariantsWithoutRowsReadsAsAnyKind) {
  const Value got = Got([](VARIANT& v) { GiveVariants(v, {}, 0); });
  EXPECT_TRUE(hostlib::TextsOf(got).items.empty());
  EXPECT_TRUE(hostlib::DoublesOf(got).items.empty());
}

TEST_F(Values, VariantsOfSeveralKindsAreAMismatch) {
  const auto error =
      FailureOf([&] { Got([](VARIANT& v) { GiveVariants(v, Rows(L"a", SHORT{2}), 0); }); });
  EXPECT_EQ(error.number(), DISP_E_TYPEMISMATCH);
  EXPECT_EQ(error.operation(), L"GetValue");
}

TEST_F(Values, AnArrayOfSeveralDimensionsIsAMismatch) {
  const auto error = FailureOf([&] {
    Got([](VARIANT& v) {
      SAFEARRAYBOUND bounds[] = {{2, 0}, {2, 0}};
      v.vt = VT_ARRAY | VT_BSTR;
      v.parray = SafeArrayCreate(VT_BSTR, 2, bounds);
    });
  });
  EXPECT_EQ(error.number(), DISP_E_TYPEMISMATCH);
}

TEST_F(Values, RowsOfAnotherSizeThanTheySayAreAMismatch) {
  const auto error = FailureOf([&] {
    Got([](VARIANT& v) {
      v.parray = SafeArrayCreateVector(VT_I2, 0, 2);
      v.vt = VT_ARRAY | VT_R8;
    });
  });
  EXPECT_EQ(error.number(), DISP_E_TYPEMISMATCH);
}

TEST_F(Values, ADateIsAMismatchAndNoCrash) {
  const auto error = FailureOf([&] {
    Got([](VARIANT& v) {
      v.vt = VT_DATE;
      v.date = 1;
    });
  });
  EXPECT_EQ(error.number(), DISP_E_TYPEMISMATCH);
  EXPECT_EQ(error.description(), L"Type mismatch: a variant of kind 7");
}

TEST_F(Values, AnErrorInAVariantIsAMismatch) {
  const auto error = FailureOf([&] {
    Got([](VARIANT& v) {
      v.vt = VT_ERROR;
      v.scode = E_FAIL;
    });
  });
  EXPECT_EQ(error.number(), DISP_E_TYPEMISMATCH);
}

TEST_F(Values, AListGivesItsArrayThroughItsDefaultMember) {
  ComPtr<TestObject> list(new TestObject(nullptr));
  list->Answer([](VARIANT& v) { GiveTextArray(v, {L"x", L"y"}, 1); });
  const Value got = Got([&](VARIANT& v) {
    v.vt = VT_DISPATCH;
    list.CopyTo(&v.pdispVal);
  });
  EXPECT_EQ(got.AsObject()->ClassName(), L"List");
  EXPECT_EQ(hostlib::TextsOf(got), (TextArray{{L"x", L"y"}, 1}));
  EXPECT_EQ(list->calls, (std::vector<DISPID>{DISPID_VALUE}));
  EXPECT_EQ(list->typeQuestions, 0);
}

TEST_F(Values, AnObjectThatTheLibraryGivesIsOfThePromisedClass) {
  const auto list = Install(L"TstListRequest", __uuidof(::TestList), __uuidof(IList));
  list->Answer([this](VARIANT& v) {
    v.vt = VT_UNKNOWN;
    server_.CopyTo(reinterpret_cast<TestObject**>(&v.punkVal));
  });
  const Value bag = Made(L"TstListRequest")->Call(10, {Value(L"response")});
  EXPECT_EQ(bag.AsObject()->ClassName(), L"ParameterBag");
  bag.AsObject()->Call(8, {Value(L"key")});
  EXPECT_EQ(server_->calls, (std::vector<DISPID>{102}));
}

}  // namespace
}  // namespace com_tests
