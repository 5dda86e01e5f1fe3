#include "graphics/DeviceContext.h"

#include <memory>
#include <utility>

#include "graphics/HandleTable.h"

namespace {

HandleTable<HDC, DeviceContext>& Table() {
  static auto& table = *new HandleTable<HDC, DeviceContext>;
  return table;
}

}  // namespace

HDC CreateDeviceContext(DeviceContext context) {
  return Table().Add(std::make_unique<DeviceContext>(std::move(context)));
}

void DeleteDeviceContext(HDC dc) {
  Table().Remove(dc);
}

DeviceContext* GetDeviceContext(HDC dc) {
  return Table().Find(dc);
}
