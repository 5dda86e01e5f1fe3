#include "graphics/DeviceContext.h"

#include <memory>
#include <utility>

#include "graphics/HandleTable.h"

namespace {

HandleTable<HDC, DeviceContext>& Contexts() {
  static auto& table = *new HandleTable<HDC, DeviceContext>;
  return table;
}

}  // namespace

HDC CreateDeviceContext(DeviceContext context) {
  return Contexts().Add(std::make_unique<DeviceContext>(std::move(context)));
}

void DeleteDeviceContext(HDC dc) {
  Contexts().Remove(dc);
}

DeviceContext* GetDeviceContext(HDC dc) {
  return Contexts().Find(dc);
}
