// Any bytes as a form file: a model, an error text, or one of the announced exceptions.

#include <cstddef>
#include <cstdint>
#include <rapidxml/rapidxml.hpp>
#include <stdexcept>
#include <string_view>

#include "form/FormParser.h"
#include "form/FormText.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto text = Wexa::PlainFormText({reinterpret_cast<const char*>(data), size});
  if (!text) return 0;
  Wexa::FormModel model;
  try {
    Wexa::FormParser().Parse(*text, model);
  } catch (const rapidxml::parse_error&) {
  } catch (const std::invalid_argument&) {
  } catch (const std::out_of_range&) {
  }
  return 0;
}
