#pragma once

#include <memory>
#include <span>
#include <vector>

#include "hostlib/Object.h"
#include "practice/terminal/Exporter.h"

namespace practice::terminal {

class ComObject;

/// One interface of a COM object.
class Part {
 public:
  virtual ~Part() = default;
  virtual IDispatch* dispatch() = 0;
};

struct PartEntry {
  const IID* id;
  std::unique_ptr<Part> (*make)(ComObject& owner, const hostlib::ObjectPtr& target);
};

enum class ClassUse {
  kOrdinary,
  kNonCreatable,  ///< only operations give such objects
  kHidden,        ///< no script's: not counted
};

/// A class of the library: its interfaces in order.
struct LibraryClass {
  std::wstring_view name;
  CLSID id;
  ClassUse use;
  std::vector<PartEntry> parts;
};

std::span<const LibraryClass> LibraryClasses();
/// Null when there is no such class.
const LibraryClass* FindClass(std::wstring_view name);

/// By which an object of this process is known again when a client hands it back. Has no proxy, so
/// that an object of any other process does not answer.
struct IExported : public IUnknown {
  virtual const hostlib::ObjectPtr& STDMETHODCALLTYPE Target() = 0;
};
extern const IID kExportedId;

/// A library object as COM sees it: the identity behind its interfaces.
class ComObject final : public IExported, public ISupportErrorInfo, public IProvideClassInfo {
 public:
  /// Begins with one reference.
  ComObject(Exporter& exporter, hostlib::ObjectPtr target, const LibraryClass& kind,
            ClientPtr client);
  ComObject(const ComObject&) = delete;
  ComObject& operator=(const ComObject&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;
  const hostlib::ObjectPtr& STDMETHODCALLTYPE Target() override { return target_; }
  HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID id) override;
  HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** info) override;

  Exporter& exporter() { return exporter_; }
  const LibraryClass& kind() const { return kind_; }
  const ClientPtr& client() const { return client_; }

 private:
  ~ComObject();
  IDispatch* PartNumber(std::size_t index);

  ULONG references_ = 1;
  Exporter& exporter_;
  hostlib::ObjectPtr target_;
  const LibraryClass& kind_;
  ClientPtr client_;
  std::vector<std::unique_ptr<Part>> parts_;
};

}  // namespace practice::terminal
