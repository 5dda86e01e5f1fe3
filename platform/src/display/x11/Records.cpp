#include "Records.h"

namespace display::x11 {
namespace {

bool IsPlace(const Input& input) {
  return input.kind == Input::Kind::Moved || input.kind == Input::Kind::Resized;
}

bool Replaces(const Record& later, const Record& earlier) {
  const Input::Kind kind = later.input.kind;
  if (kind != earlier.input.kind || later.input.surface != earlier.input.surface) return false;
  if (kind == Input::Kind::PointerMoved) return later.held == earlier.held;
  return IsPlace(later.input) || kind == Input::Kind::FilesDragged;
}

}  // namespace

void Records::Push(Record record) {
  if (!records_.empty() && Replaces(record, records_.back())) {
    records_.back().input = std::move(record.input);
  } else {
    records_.push_back(std::move(record));
  }
}

std::optional<Record> Records::Pop() {
  if (records_.empty()) return std::nullopt;
  Record record = std::move(records_.front());
  records_.pop_front();
  return record;
}

void Records::DropPlaces(SurfaceId id) {
  std::erase_if(records_, [id](const Record& record) {
    return record.input.surface == id && IsPlace(record.input);
  });
}

void Records::DropAll(SurfaceId id) {
  std::erase_if(records_, [id](const Record& record) { return record.input.surface == id; });
}

}  // namespace display::x11
