#include "SharedMemory.h"

#include <sys/ipc.h>
#include <sys/shm.h>

#include "Connection.h"

namespace display::x11 {
namespace {

bool HasExtension(xcb_connection_t* connection) {
  const auto* extension = xcb_get_extension_data(connection, &xcb_shm_id);
  return extension && extension->present;
}

void* const kFailed = reinterpret_cast<void*>(-1);

}  // namespace

std::unique_ptr<SharedMemory> SharedMemory::Create(Connection& connection, std::size_t size) {
  if (!HasExtension(connection.Get())) return nullptr;
  const int id = shmget(IPC_PRIVATE, size, IPC_CREAT | 0600);
  if (id < 0) return nullptr;
  void* data = shmat(id, nullptr, 0);
  std::unique_ptr<SharedMemory> memory;
  if (data != kFailed) {
    memory.reset(new SharedMemory(connection, data, size));
    if (!memory->Attach(id)) memory.reset();
  }
  // From here the segment lives as long as someone is attached, however this process ends.
  shmctl(id, IPC_RMID, nullptr);
  return memory;
}

SharedMemory::SharedMemory(Connection& connection, void* data, std::size_t size)
    : connection_(connection), data_(data), size_(size) {}

SharedMemory::~SharedMemory() {
  if (segment_) xcb_shm_detach(connection_.Get(), segment_);
  shmdt(data_);
}

bool SharedMemory::Attach(int id) {
  xcb_connection_t* c = connection_.Get();
  const xcb_shm_seg_t segment = xcb_generate_id(c);
  const auto cookie = xcb_shm_attach_checked(c, segment, static_cast<std::uint32_t>(id), 1);
  const auto error = Own(xcb_request_check(c, cookie));
  if (error || xcb_connection_has_error(c)) return false;
  segment_ = segment;
  return true;
}

}  // namespace display::x11
