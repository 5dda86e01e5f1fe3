#pragma once

#include <memory>

#include "WexaExport.h"

namespace Wexa {

class WexaObject;

// The state behind a WexaObject. Neither link is owned.
class WEXA_API WexaObjectImpl {
 public:
  virtual ~WexaObjectImpl();

  WexaObject* owner = nullptr;
  WexaObject* parent = nullptr;
};

// The root of the class tree. An object knows its parent and nothing of its children: destroying it
// neither tells the parent nor touches objects that name it as theirs.
class WEXA_API WexaObject {
 public:
  explicit WexaObject(WexaObject* parent = nullptr);
  WexaObject(const WexaObject&) = delete;
  WexaObject& operator=(const WexaObject&) = delete;
  virtual ~WexaObject();

  // Null for a root.
  WexaObject* GetParent() const;
  // Changes the link only; native windows stay where they are.
  void SetParent(WexaObject* parent);

 protected:
  // Adopts the state; null stands for a plain one.
  WexaObject(std::unique_ptr<WexaObjectImpl> impl, WexaObject* parent);

 private:
  WexaObjectImpl* GetImpl() { return impl_.get(); }
  const WexaObjectImpl* GetImpl() const { return impl_.get(); }

  std::unique_ptr<WexaObjectImpl> impl_;
};

}  // namespace Wexa
