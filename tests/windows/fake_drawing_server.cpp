// A drawing program of our own, in a process of its own: it registers itself as the one that the link looks
// for, and writes down every call that comes in. Ends when its application is asked to quit.
//     fake_drawing_server.exe LOG
#include <windows.h>

#include <oleauto.h>

#include <cstdio>
#include <fstream>
#include <map>
#include <stdexcept>

#include "tests/support/fake_drawing.h"

namespace {

using namespace korvet;

// {6F0C2A54-52B7-4C0D-9E6B-2C5A1D0B7E15}
constexpr CLSID ServerId = {0x6F0C2A54, 0x52B7, 0x4C0D, {0x9E, 0x6B, 0x2C, 0x5A, 0x1D, 0x0B, 0x7E, 0x15}};

std::string Narrow(const wchar_t* text, int length) {
    std::string narrow(static_cast<std::size_t>(
                           ::WideCharToMultiByte(CP_UTF8, 0, text, length, nullptr, 0, nullptr, nullptr)),
                       '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, text, length, narrow.data(), static_cast<int>(narrow.size()), nullptr,
                          nullptr);
    return narrow;
}

BSTR Text(const std::string& text) {
    std::wstring wide(text.size() + 1, L'\0');
    const int length = ::MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                             wide.data(), static_cast<int>(wide.size()));
    return ::SysAllocStringLen(wide.data(), static_cast<UINT>(length));
}

/// A fake object for callers outside. It takes each kind of value in one form alone.
class Dispatch final : public IDispatch {
  public:
    explicit Dispatch(std::shared_ptr<AutomationObject> object) : object_(std::move(object)) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** found) override {
        const bool known = ::IsEqualIID(id, IID_IUnknown) || ::IsEqualIID(id, IID_IDispatch);
        *found = known ? this : nullptr;
        if (known) {
            AddRef();
        }
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++count_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --count_;
        if (left == 0) {
            delete this;
        }
        return left;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override {
        static const std::string unknown = "NoSuchMember";
        const std::string name = Narrow(names[0], -1).c_str();
        if (name == unknown) {
            return DISP_E_UNKNOWNNAME;
        }
        Names()[static_cast<DISPID>(Names().size()) + 1] = name;
        ids[0] = static_cast<DISPID>(Names().size());
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD kind, DISPPARAMS* parameters,
                                     VARIANT* answer, EXCEPINFO* exception, UINT*) override {
        try {
            return Do(Names().at(id), kind, *parameters, answer);
        } catch (const std::exception& error) {
            exception->bstrDescription = Text(error.what());
            return DISP_E_EXCEPTION;
        }
    }

  private:
    static std::map<DISPID, std::string>& Names() {
        static std::map<DISPID, std::string> names;
        return names;
    }

    HRESULT Do(const std::string& name, WORD kind, DISPPARAMS& parameters, VARIANT* answer) {
        if (name == "Quit") {
            ::PostQuitMessage(0);
            return S_OK;
        }
        std::vector<AutomationValue> arguments;
        std::size_t results = 0;
        for (UINT i = parameters.cArgs; i > 0; --i) {
            const VARIANT& argument = parameters.rgvarg[i - 1];
            results += argument.vt == (VT_BYREF | VT_VARIANT) ? 1 : 0;
            arguments.push_back(Value(argument));
        }
        if (kind == DISPATCH_PROPERTYPUT) {
            if (parameters.cNamedArgs != 1 || parameters.rgdispidNamedArgs[0] != DISPID_PROPERTYPUT) {
                return DISP_E_PARAMNOTOPTIONAL;
            }
            object_->Put(name, arguments.at(0));
            return S_OK;
        }
        const AutomationValue value =
            (kind & DISPATCH_METHOD) != 0 ? object_->Call(name, arguments, results) : object_->Get(name);
        for (std::size_t i = 0; i < results; ++i) {
            Store(arguments[i], parameters.rgvarg[parameters.cArgs - 1 - i].pvarVal);
        }
        if (answer != nullptr) {
            Store(value, answer);
        }
        return S_OK;
    }

    static AutomationValue Value(const VARIANT& variant) {
        switch (variant.vt) {
            case VT_ERROR:
            case VT_BYREF | VT_VARIANT:
                return {};
            case VT_BOOL:
                return variant.boolVal == VARIANT_TRUE;
            case VT_I4:
                return static_cast<std::int32_t>(variant.lVal);
            case VT_R8:
                return variant.dblVal;
            case VT_BSTR:
                return Narrow(variant.bstrVal, static_cast<int>(::SysStringLen(variant.bstrVal)));
            case VT_ARRAY | VT_R8: {
                std::vector<double> numbers;
                LONG high = -1;
                ::SafeArrayGetUBound(variant.parray, 1, &high);
                for (LONG i = 0; i <= high; ++i) {
                    double number = 0;
                    ::SafeArrayGetElement(variant.parray, &i, &number);
                    numbers.push_back(number);
                }
                return numbers;
            }
            default:
                throw std::runtime_error("a value of kind " + std::to_string(variant.vt));
        }
    }

    static void Store(const AutomationValue& value, VARIANT* place) {
        ::VariantInit(place);
        if (const auto* const truth = std::get_if<bool>(&value)) {
            place->vt = VT_BOOL;
            place->boolVal = *truth ? VARIANT_TRUE : VARIANT_FALSE;
        } else if (const auto* const number = std::get_if<std::int32_t>(&value)) {
            place->vt = VT_I4;
            place->lVal = *number;
        } else if (const auto* const text = std::get_if<std::string>(&value)) {
            place->vt = VT_BSTR;
            place->bstrVal = Text(*text);
        } else if (const auto* const numbers = std::get_if<std::vector<double>>(&value)) {
            place->vt = VT_ARRAY | VT_R8;
            place->parray = ::SafeArrayCreateVector(VT_R8, 0, static_cast<ULONG>(numbers->size()));
            for (LONG i = 0; i < static_cast<LONG>(numbers->size()); ++i) {
                double element = (*numbers)[static_cast<std::size_t>(i)];
                ::SafeArrayPutElement(place->parray, &i, &element);
            }
        } else if (const auto* const object = std::get_if<std::shared_ptr<AutomationObject>>(&value)) {
            place->vt = VT_DISPATCH;
            place->pdispVal = new Dispatch(*object);
        }
    }

    std::shared_ptr<AutomationObject> object_;
    ULONG count_ = 1;
};

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2 || FAILED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {
        return 2;
    }
    FakeDrawing drawing;
    drawing.mesh = {{"MVertexCount", std::int32_t{2}},
                    {"NVertexCount", std::int32_t{2}},
                    {"MClose", false},
                    {"Coordinates", std::vector<double>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12.5}}};
    auto* const application = new Dispatch(std::make_shared<FakeObject>(drawing, "Application"));
    DWORD registration = 0;
    if (FAILED(::RegisterActiveObject(application, ServerId, ACTIVEOBJECT_STRONG, &registration))) {
        return 3;
    }
    std::puts("ready");
    std::fflush(stdout);
    MSG message;
    while (::GetMessageW(&message, nullptr, 0, 0) > 0) {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
    ::RevokeActiveObject(registration, nullptr);
    std::ofstream log(argv[1], std::ios::binary);
    for (const std::string& call : drawing.calls) {
        log << call << '\n';
    }
    application->Release();
    ::CoUninitialize();
    return 0;
}
