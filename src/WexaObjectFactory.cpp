#include "WexaObjectFactory.h"

namespace Wexa {

ICreator::~ICreator() = default;

WexaObjectFactory::WexaObjectFactory() = default;
WexaObjectFactory::~WexaObjectFactory() = default;

WexaObjectFactory& WexaObjectFactory::Instance() {
  static auto& factory = *new WexaObjectFactory;  // outlives the host's static objects
  return factory;
}

void WexaObjectFactory::Register(std::string className, std::shared_ptr<ICreator> creator) {
  creators_.try_emplace(std::move(className), std::move(creator));
}

std::shared_ptr<BaseGUIObject> WexaObjectFactory::Create(std::string className) {
  const auto found = creators_.find(className);
  const bool known = found != creators_.end() && found->second != nullptr;
  return known ? found->second->Create() : nullptr;
}

}  // namespace Wexa
