#include "platform/com_automation.h"

#ifdef _WIN32

#include <windows.h>

#include <oleauto.h>

#include <algorithm>
#include <utility>

namespace korvet {
namespace {

std::wstring Wide(const std::string& text) {
    const int bytes = static_cast<int>(text.size());
    std::wstring wide(
        static_cast<std::size_t>(::MultiByteToWideChar(CP_UTF8, 0, text.data(), bytes, nullptr, 0)), L'\0');
    ::MultiByteToWideChar(CP_UTF8, 0, text.data(), bytes, wide.data(), static_cast<int>(wide.size()));
    return wide;
}

std::string Utf8(const wchar_t* text, std::size_t length) {
    const int units = static_cast<int>(length);
    std::string utf8(static_cast<std::size_t>(
                         ::WideCharToMultiByte(CP_UTF8, 0, text, units, nullptr, 0, nullptr, nullptr)),
                     '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, text, units, utf8.data(), static_cast<int>(utf8.size()), nullptr,
                          nullptr);
    return utf8;
}

std::string Utf8(BSTR text) {
    return text == nullptr ? std::string() : Utf8(text, ::SysStringLen(text));
}

/// A VARIANT that owns what it holds.
class Variant {
  public:
    Variant() { ::VariantInit(&value_); }
    ~Variant() { ::VariantClear(&value_); }
    Variant(const Variant&) = delete;
    Variant& operator=(const Variant&) = delete;

    [[nodiscard]] VARIANT* Pointer() { return &value_; }
    [[nodiscard]] VARIANT& operator*() { return value_; }

  private:
    VARIANT value_;
};

[[noreturn]] void Fail(const std::string& what, HRESULT result) {
    wchar_t* text = nullptr;
    const DWORD length = ::FormatMessageW(
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
        static_cast<DWORD>(result), 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr);
    const std::string reason = length == 0 ? "error " + std::to_string(result) : Utf8(text, length);
    ::LocalFree(text);
    throw AutomationError(what + ": " + reason);
}

class ComObject final : public AutomationObject {
  public:
    /// Takes over the caller's share of the object.
    explicit ComObject(IDispatch* object) : object_(object) {}
    ~ComObject() override { object_->Release(); }

    [[nodiscard]] AutomationValue Get(const std::string& name) override;
    void Put(const std::string& name, const AutomationValue& value) override;
    AutomationValue Call(const std::string& name, std::vector<AutomationValue>& arguments,
                         std::size_t results) override;

    [[nodiscard]] IDispatch* Object() const { return object_; }

  private:
    AutomationValue Invoke(const std::string& name, WORD kind, DISPPARAMS& parameters);

    IDispatch* object_;
};

void PutArray(VARIANT& variant, const std::vector<double>& numbers) {
    SAFEARRAY* const array = ::SafeArrayCreateVector(VT_R8, 0, static_cast<ULONG>(numbers.size()));
    void* data = nullptr;
    if (array == nullptr || FAILED(::SafeArrayAccessData(array, &data))) {
        throw AutomationError("there is no memory for an array");
    }
    std::copy(numbers.begin(), numbers.end(), static_cast<double*>(data));
    ::SafeArrayUnaccessData(array);
    variant.vt = VT_ARRAY | VT_R8;
    variant.parray = array;
}

/// Makes a VARIANT of each kind of value. Nothing is an argument that is left out.
struct PutInto {
    VARIANT& variant;

    void operator()(std::monostate) const {
        variant.vt = VT_ERROR;
        variant.scode = DISP_E_PARAMNOTFOUND;
    }
    void operator()(bool truth) const {
        variant.vt = VT_BOOL;
        variant.boolVal = truth ? VARIANT_TRUE : VARIANT_FALSE;
    }
    void operator()(std::int32_t number) const {
        variant.vt = VT_I4;
        variant.lVal = number;
    }
    void operator()(double number) const {
        variant.vt = VT_R8;
        variant.dblVal = number;
    }
    void operator()(const std::string& text) const {
        const std::wstring wide = Wide(text);
        variant.vt = VT_BSTR;
        variant.bstrVal = ::SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
    }
    void operator()(const std::vector<double>& numbers) const { PutArray(variant, numbers); }
    void operator()(const std::shared_ptr<AutomationObject>& object) const {
        variant.vt = VT_DISPATCH;
        variant.pdispVal = object ? static_cast<ComObject&>(*object).Object() : nullptr;
        if (variant.pdispVal != nullptr) {
            variant.pdispVal->AddRef();
        }
    }
};

std::vector<double> NumbersOf(SAFEARRAY* array) {
    LONG low = 0;
    LONG high = -1;
    void* data = nullptr;
    if (array == nullptr || ::SafeArrayGetDim(array) != 1 || FAILED(::SafeArrayGetLBound(array, 1, &low)) ||
        FAILED(::SafeArrayGetUBound(array, 1, &high)) || FAILED(::SafeArrayAccessData(array, &data))) {
        throw AutomationError("an array cannot be read");
    }
    const auto* const first = static_cast<const double*>(data);
    std::vector<double> numbers(first, first + (high - low + 1));
    ::SafeArrayUnaccessData(array);
    return numbers;
}

AutomationValue ValueOf(const VARIANT& variant) {
    switch (variant.vt) {
        case VT_BYREF | VT_VARIANT:
            return ValueOf(*variant.pvarVal);
        case VT_BOOL:
            return variant.boolVal != VARIANT_FALSE;
        case VT_I2:
            return static_cast<std::int32_t>(variant.iVal);
        case VT_I4:
        case VT_INT:
            return static_cast<std::int32_t>(variant.lVal);
        case VT_R4:
            return static_cast<double>(variant.fltVal);
        case VT_R8:
            return variant.dblVal;
        case VT_BSTR:
            return Utf8(variant.bstrVal);
        case VT_ARRAY | VT_R8:
            return NumbersOf(variant.parray);
        case VT_DISPATCH:
            if (variant.pdispVal != nullptr) {
                variant.pdispVal->AddRef();
                return std::shared_ptr<AutomationObject>(std::make_shared<ComObject>(variant.pdispVal));
            }
            return {};
        default:
            return {};
    }
}

AutomationValue ComObject::Invoke(const std::string& name, WORD kind, DISPPARAMS& parameters) {
    std::wstring wide = Wide(name);
    wchar_t* text = wide.data();
    DISPID id = 0;
    HRESULT result = object_->GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &id);
    if (FAILED(result)) {
        Fail(name, result);
    }
    Variant answer;
    EXCEPINFO exception = {};
    result = object_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters,
                             kind == DISPATCH_PROPERTYPUT ? nullptr : answer.Pointer(), &exception, nullptr);
    const std::string told = Utf8(exception.bstrDescription);
    ::SysFreeString(exception.bstrSource);
    ::SysFreeString(exception.bstrDescription);
    ::SysFreeString(exception.bstrHelpFile);
    if (result == DISP_E_EXCEPTION && !told.empty()) {
        throw AutomationError(name + ": " + told);
    }
    if (FAILED(result)) {
        Fail(name, result);
    }
    return ValueOf(*answer);
}

AutomationValue ComObject::Get(const std::string& name) {
    DISPPARAMS none = {};
    return Invoke(name, DISPATCH_PROPERTYGET, none);
}

void ComObject::Put(const std::string& name, const AutomationValue& value) {
    Variant variant;
    std::visit(PutInto{*variant}, value);
    DISPID put = DISPID_PROPERTYPUT;
    DISPPARAMS parameters = {variant.Pointer(), &put, 1, 1};
    Invoke(name, DISPATCH_PROPERTYPUT, parameters);
}

/// Arguments stand in the reverse order. Results are given a place of their own, by reference.
AutomationValue ComObject::Call(const std::string& name, std::vector<AutomationValue>& arguments,
                                std::size_t results) {
    const std::size_t count = arguments.size();
    std::vector<Variant> places(count);
    std::vector<VARIANT> reversed(count);
    for (std::size_t i = 0; i < count; ++i) {
        VARIANT& argument = reversed[count - 1 - i];
        if (i < results) {
            argument.vt = VT_BYREF | VT_VARIANT;
            argument.pvarVal = places[i].Pointer();
        } else {
            std::visit(PutInto{*places[i]}, arguments[i]);
            argument = *places[i];
        }
    }
    DISPPARAMS parameters = {reversed.data(), nullptr, static_cast<UINT>(count), 0};
    AutomationValue answer = Invoke(name, DISPATCH_METHOD, parameters);
    for (std::size_t i = 0; i < results; ++i) {
        arguments[i] = ValueOf(*places[i]);
    }
    return answer;
}

}  // namespace

ComAutomation::ComAutomation()
    : initialised_(SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}

ComAutomation::~ComAutomation() {
    if (initialised_) {
        ::CoUninitialize();
    }
}

std::shared_ptr<AutomationObject> ComAutomation::Running(const std::string& progId) {
    CLSID id = {};
    IUnknown* running = nullptr;
    if (FAILED(::CLSIDFromProgID(Wide(progId).c_str(), &id)) ||
        FAILED(::GetActiveObject(id, nullptr, &running))) {
        return nullptr;
    }
    IDispatch* object = nullptr;
    const HRESULT result = running->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&object));
    running->Release();
    return SUCCEEDED(result) ? std::make_shared<ComObject>(object) : nullptr;
}

}  // namespace korvet

#endif
