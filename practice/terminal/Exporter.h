#pragma once

#include <functional>
#include <set>
#include <utility>

#include "hostlib/com/VariantValues.h"
#include "practice/terminal/Client.h"
#include "practice/terminal/ProcessLife.h"
#include "practice/terminal/TypeLibrary.h"

namespace practice::terminal {

class ComObject;

/// Hands the library's objects out as COM objects, knows them again, and counts them.
class Exporter : public hostlib::com::ObjectGate {
 public:
  Exporter(const TypeLibrary& types, ProcessLife& life);
  Exporter(const Exporter&) = delete;
  Exporter& operator=(const Exporter&) = delete;

  /// A new COM object for it, with one reference; null for a null object. Throws LibraryError when
  /// the type library does not describe the object's class.
  ComPtr<IDispatch> Outward(const hostlib::ObjectPtr& object) override;
  /// An object that this process handed out, or one of which only properties can be read that are
  /// known by name; null for null.
  hostlib::ObjectPtr Inward(ComPtr<IDispatch> object, std::wstring_view className) override;

  const TypeLibrary& types() const { return types_; }
  ProcessLife& life() { return life_; }

  /// How many objects of scripts have not been released.
  int Live() const;
  /// Told after every change of the number.
  std::function<void(int live)> onChange;

  /// Objects handed out in its lifetime belong to this client; null: to nobody known.
  class Serving {
   public:
    Serving(Exporter& exporter, ClientPtr client)
        : exporter_(exporter), before_(std::exchange(exporter.client_, std::move(client))) {}
    ~Serving() { exporter_.client_ = std::move(before_); }
    Serving(const Serving&) = delete;
    Serving& operator=(const Serving&) = delete;

   private:
    Exporter& exporter_;
    ClientPtr before_;
  };

  /// Frees the objects of clients that have ended without releasing them.
  void DisconnectTheDead();
  /// Takes every object away from its clients, whose calls fail from then on.
  void DisconnectAll();

  // An object's own beginning and end; between them it keeps the process.
  void Began(ComObject& object);
  void Ended(ComObject& object);

 private:
  void Changed() const;
  void Disconnect(const std::function<bool(const ComObject&)>& which);

  const TypeLibrary& types_;
  ProcessLife& life_;
  ClientPtr client_;
  std::set<ComObject*> live_;
};

}  // namespace practice::terminal
