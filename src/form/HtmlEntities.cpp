#include "form/HtmlEntities.h"

#include <algorithm>
#include <charconv>
#include <string>

namespace Wexa {
namespace {

struct NamedCharacter {
  std::wstring_view name;
  wchar_t character;
};

// The names of HTML 4 and "apos", in the order of the names.
constexpr NamedCharacter kNamed[] = {
    {L"AElig", 0xC6},     {L"Aacute", 0xC1},   {L"Acirc", 0xC2},     {L"Agrave", 0xC0},
    {L"Alpha", 0x391},    {L"Aring", 0xC5},    {L"Atilde", 0xC3},    {L"Auml", 0xC4},
    {L"Beta", 0x392},     {L"Ccedil", 0xC7},   {L"Chi", 0x3A7},      {L"Dagger", 0x2021},
    {L"Delta", 0x394},    {L"ETH", 0xD0},      {L"Eacute", 0xC9},    {L"Ecirc", 0xCA},
    {L"Egrave", 0xC8},    {L"Epsilon", 0x395}, {L"Eta", 0x397},      {L"Euml", 0xCB},
    {L"Gamma", 0x393},    {L"Iacute", 0xCD},   {L"Icirc", 0xCE},     {L"Igrave", 0xCC},
    {L"Iota", 0x399},     {L"Iuml", 0xCF},     {L"Kappa", 0x39A},    {L"Lambda", 0x39B},
    {L"Mu", 0x39C},       {L"Ntilde", 0xD1},   {L"Nu", 0x39D},       {L"OElig", 0x152},
    {L"Oacute", 0xD3},    {L"Ocirc", 0xD4},    {L"Ograve", 0xD2},    {L"Omega", 0x3A9},
    {L"Omicron", 0x39F},  {L"Oslash", 0xD8},   {L"Otilde", 0xD5},    {L"Ouml", 0xD6},
    {L"Phi", 0x3A6},      {L"Pi", 0x3A0},      {L"Prime", 0x2033},   {L"Psi", 0x3A8},
    {L"Rho", 0x3A1},      {L"Scaron", 0x160},  {L"Sigma", 0x3A3},    {L"THORN", 0xDE},
    {L"Tau", 0x3A4},      {L"Theta", 0x398},   {L"Uacute", 0xDA},    {L"Ucirc", 0xDB},
    {L"Ugrave", 0xD9},    {L"Upsilon", 0x3A5}, {L"Uuml", 0xDC},      {L"Xi", 0x39E},
    {L"Yacute", 0xDD},    {L"Yuml", 0x178},    {L"Zeta", 0x396},     {L"aacute", 0xE1},
    {L"acirc", 0xE2},     {L"acute", 0xB4},    {L"aelig", 0xE6},     {L"agrave", 0xE0},
    {L"alefsym", 0x2135}, {L"alpha", 0x3B1},   {L"amp", 0x26},       {L"and", 0x2227},
    {L"ang", 0x2220},     {L"apos", 0x27},     {L"aring", 0xE5},     {L"asymp", 0x2248},
    {L"atilde", 0xE3},    {L"auml", 0xE4},     {L"bdquo", 0x201E},   {L"beta", 0x3B2},
    {L"brvbar", 0xA6},    {L"bull", 0x2022},   {L"cap", 0x2229},     {L"ccedil", 0xE7},
    {L"cedil", 0xB8},     {L"cent", 0xA2},     {L"chi", 0x3C7},      {L"circ", 0x2C6},
    {L"clubs", 0x2663},   {L"cong", 0x2245},   {L"copy", 0xA9},      {L"crarr", 0x21B5},
    {L"cup", 0x222A},     {L"curren", 0xA4},   {L"dArr", 0x21D3},    {L"dagger", 0x2020},
    {L"darr", 0x2193},    {L"deg", 0xB0},      {L"delta", 0x3B4},    {L"diams", 0x2666},
    {L"divide", 0xF7},    {L"eacute", 0xE9},   {L"ecirc", 0xEA},     {L"egrave", 0xE8},
    {L"empty", 0x2205},   {L"emsp", 0x2003},   {L"ensp", 0x2002},    {L"epsilon", 0x3B5},
    {L"equiv", 0x2261},   {L"eta", 0x3B7},     {L"eth", 0xF0},       {L"euml", 0xEB},
    {L"euro", 0x20AC},    {L"exist", 0x2203},  {L"fnof", 0x192},     {L"forall", 0x2200},
    {L"frac12", 0xBD},    {L"frac14", 0xBC},   {L"frac34", 0xBE},    {L"frasl", 0x2044},
    {L"gamma", 0x3B3},    {L"ge", 0x2265},     {L"gt", 0x3E},        {L"hArr", 0x21D4},
    {L"harr", 0x2194},    {L"hearts", 0x2665}, {L"hellip", 0x2026},  {L"iacute", 0xED},
    {L"icirc", 0xEE},     {L"iexcl", 0xA1},    {L"igrave", 0xEC},    {L"image", 0x2111},
    {L"infin", 0x221E},   {L"int", 0x222B},    {L"iota", 0x3B9},     {L"iquest", 0xBF},
    {L"isin", 0x2208},    {L"iuml", 0xEF},     {L"kappa", 0x3BA},    {L"lArr", 0x21D0},
    {L"lambda", 0x3BB},   {L"lang", 0x2329},   {L"laquo", 0xAB},     {L"larr", 0x2190},
    {L"lceil", 0x2308},   {L"ldquo", 0x201C},  {L"le", 0x2264},      {L"lfloor", 0x230A},
    {L"lowast", 0x2217},  {L"loz", 0x25CA},    {L"lrm", 0x200E},     {L"lsaquo", 0x2039},
    {L"lsquo", 0x2018},   {L"lt", 0x3C},       {L"macr", 0xAF},      {L"mdash", 0x2014},
    {L"micro", 0xB5},     {L"middot", 0xB7},   {L"minus", 0x2212},   {L"mu", 0x3BC},
    {L"nabla", 0x2207},   {L"nbsp", 0xA0},     {L"ndash", 0x2013},   {L"ne", 0x2260},
    {L"ni", 0x220B},      {L"not", 0xAC},      {L"notin", 0x2209},   {L"nsub", 0x2284},
    {L"ntilde", 0xF1},    {L"nu", 0x3BD},      {L"oacute", 0xF3},    {L"ocirc", 0xF4},
    {L"oelig", 0x153},    {L"ograve", 0xF2},   {L"oline", 0x203E},   {L"omega", 0x3C9},
    {L"omicron", 0x3BF},  {L"oplus", 0x2295},  {L"or", 0x2228},      {L"ordf", 0xAA},
    {L"ordm", 0xBA},      {L"oslash", 0xF8},   {L"otilde", 0xF5},    {L"otimes", 0x2297},
    {L"ouml", 0xF6},      {L"para", 0xB6},     {L"part", 0x2202},    {L"permil", 0x2030},
    {L"perp", 0x22A5},    {L"phi", 0x3C6},     {L"pi", 0x3C0},       {L"piv", 0x3D6},
    {L"plusmn", 0xB1},    {L"pound", 0xA3},    {L"prime", 0x2032},   {L"prod", 0x220F},
    {L"prop", 0x221D},    {L"psi", 0x3C8},     {L"quot", 0x22},      {L"rArr", 0x21D2},
    {L"radic", 0x221A},   {L"rang", 0x232A},   {L"raquo", 0xBB},     {L"rarr", 0x2192},
    {L"rceil", 0x2309},   {L"rdquo", 0x201D},  {L"real", 0x211C},    {L"reg", 0xAE},
    {L"rfloor", 0x230B},  {L"rho", 0x3C1},     {L"rlm", 0x200F},     {L"rsaquo", 0x203A},
    {L"rsquo", 0x2019},   {L"sbquo", 0x201A},  {L"scaron", 0x161},   {L"sdot", 0x22C5},
    {L"sect", 0xA7},      {L"shy", 0xAD},      {L"sigma", 0x3C3},    {L"sigmaf", 0x3C2},
    {L"sim", 0x223C},     {L"spades", 0x2660}, {L"sub", 0x2282},     {L"sube", 0x2286},
    {L"sum", 0x2211},     {L"sup", 0x2283},    {L"sup1", 0xB9},      {L"sup2", 0xB2},
    {L"sup3", 0xB3},      {L"supe", 0x2287},   {L"szlig", 0xDF},     {L"tau", 0x3C4},
    {L"there4", 0x2234},  {L"theta", 0x3B8},   {L"thetasym", 0x3D1}, {L"thinsp", 0x2009},
    {L"thorn", 0xFE},     {L"tilde", 0x2DC},   {L"times", 0xD7},     {L"trade", 0x2122},
    {L"uArr", 0x21D1},    {L"uacute", 0xFA},   {L"uarr", 0x2191},    {L"ucirc", 0xFB},
    {L"ugrave", 0xF9},    {L"uml", 0xA8},      {L"upsih", 0x3D2},    {L"upsilon", 0x3C5},
    {L"uuml", 0xFC},      {L"weierp", 0x2118}, {L"xi", 0x3BE},       {L"yacute", 0xFD},
    {L"yen", 0xA5},       {L"yuml", 0xFF},     {L"zeta", 0x3B6},     {L"zwj", 0x200D},
    {L"zwnj", 0x200C}};
static_assert(std::ranges::is_sorted(kNamed, {}, &NamedCharacter::name));

constexpr std::size_t kLongestBody = 10;  // "thetasym", "#x0010FFFF"

bool IsCharacter(unsigned code) {
  const bool surrogate = code >= 0xD800 && code < 0xE000;
  return code > 0 && code <= 0x10FFFF && !surrogate;
}

// 0 when the digits name no character.
wchar_t NumberedCharacter(std::wstring_view digits) {
  const bool hex = digits.starts_with(L'x') || digits.starts_with(L'X');
  const std::string ascii(digits.begin() + (hex ? 1 : 0), digits.end());
  unsigned code = 0;
  const auto* const end = ascii.data() + ascii.size();
  const auto read = std::from_chars(ascii.data(), end, code, hex ? 16 : 10);
  const bool whole = read.ec == std::errc() && read.ptr == end;
  return whole && IsCharacter(code) ? static_cast<wchar_t>(code) : L'\0';
}

wchar_t CharacterNamed(std::wstring_view name) {
  if (name.starts_with(L'#')) return NumberedCharacter(name.substr(1));
  const auto* found = std::ranges::lower_bound(kNamed, name, {}, &NamedCharacter::name);
  return found != std::end(kNamed) && found->name == name ? found->character : L'\0';
}

}  // namespace

std::optional<HtmlEntity> HtmlEntityAt(std::wstring_view text) {
  if (!text.starts_with(L'&')) return std::nullopt;
  const auto end = text.substr(0, kLongestBody + 2).find(L';');
  if (end == text.npos) return std::nullopt;
  const wchar_t character = CharacterNamed(text.substr(1, end - 1));
  if (character == L'\0') return std::nullopt;
  return HtmlEntity{character, end + 1};
}

}  // namespace Wexa
