#pragma once

#include <memory>
#include <string>
#include <unordered_map>

#include "WexaExport.h"

namespace Wexa {

class BaseGUIObject;

// Makes widgets of one class.
class WEXA_API ICreator {
 public:
  virtual ~ICreator();
  virtual std::shared_ptr<BaseGUIObject> Create() = 0;
};

// Makes default-constructed widgets of class T.
template <typename T>
class Creator : public ICreator {
 public:
  std::shared_ptr<BaseGUIObject> Create() override { return std::make_shared<T>(); }
};

// Makes widgets by the class names of form files ("QPushButton"). The library registers its own
// classes when its configuration is made; a host may add others. User-interface thread only, but
// for Instance.
class WEXA_API WexaObjectFactory {
 public:
  static WexaObjectFactory& Instance();
  WexaObjectFactory(const WexaObjectFactory&) = delete;
  WexaObjectFactory& operator=(const WexaObjectFactory&) = delete;

  // The first registration of a name stays; later ones are ignored.
  void Register(std::string className, std::shared_ptr<ICreator> creator);
  // A new widget, owned by the caller and without a parent; null for an unknown name. Names are
  // compared exactly.
  std::shared_ptr<BaseGUIObject> Create(std::string className);

 private:
  WexaObjectFactory();
  ~WexaObjectFactory();

  std::unordered_map<std::string, std::shared_ptr<ICreator>> creators_;
};

}  // namespace Wexa
