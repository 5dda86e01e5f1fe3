#include "WexaObject.h"

namespace Wexa {

WexaObjectImpl::~WexaObjectImpl() = default;

WexaObject::WexaObject(WexaObject* parent) : WexaObject(nullptr, parent) {}

WexaObject::WexaObject(std::unique_ptr<WexaObjectImpl> impl, WexaObject* parent)
    : impl_(impl ? std::move(impl) : std::make_unique<WexaObjectImpl>()) {
  impl_->owner = this;
  impl_->parent = parent;
}

WexaObject::~WexaObject() = default;

WexaObject* WexaObject::GetParent() const {
  return GetImpl()->parent;
}

void WexaObject::SetParent(WexaObject* parent) {
  GetImpl()->parent = parent;
}

}  // namespace Wexa
