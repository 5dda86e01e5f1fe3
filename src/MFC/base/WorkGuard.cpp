#include "WorkGuard.h"

#include "platform/Window.h"

namespace Wexa {

WorkGuard::WorkGuard() {
  ExpectPosts();
}

WorkGuard::~WorkGuard() {
  ExpectNoMorePosts();
}

}  // namespace Wexa
