#include "Relations.h"

#include "Text.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace sim {
namespace {

enum class Kind { kEnd, kNumber, kText, kName, kOperator, kError };

struct Token {
  Kind kind = Kind::kEnd;
  std::wstring text{};  // a name, a text's contents or an operator
  double number = 0;
};

bool IsAsciiLetter(wchar_t c) { return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z'); }
bool IsDigit(wchar_t c) { return c >= L'0' && c <= L'9'; }
// Parameter names may be Chinese: every character beyond ASCII counts as a letter.
bool IsNameStart(wchar_t c) { return IsAsciiLetter(c) || c == L'_' || c >= 0x80; }
bool IsNamePart(wchar_t c) { return IsNameStart(c) || IsDigit(c); }
bool IsBlank(wchar_t c) { return c == L' ' || c == L'\t' || c == L'\r' || c == L'\n'; }

class Lexer {
 public:
  explicit Lexer(std::wstring_view line) : rest_(line) {}

  Token Next() {
    while (!rest_.empty() && IsBlank(rest_.front())) rest_.remove_prefix(1);
    if (rest_.empty()) return {};
    wchar_t c = rest_.front();
    if (IsDigit(c) || (c == L'.' && rest_.size() > 1 && IsDigit(rest_[1]))) return Number();
    if (IsNameStart(c)) return Take(Kind::kName, std::find_if_not(rest_.begin(), rest_.end(), IsNamePart));
    if (c == L'"') return Text();
    if (std::wstring_view(L"+-*/^(),=").find(c) != std::wstring_view::npos) return Take(Kind::kOperator, 1);
    return {Kind::kError};
  }

 private:
  Token Take(Kind kind, std::wstring_view::iterator end) {
    return Take(kind, static_cast<size_t>(end - rest_.begin()));
  }
  Token Take(Kind kind, size_t length) {
    Token token{kind, std::wstring(rest_.substr(0, length))};
    rest_.remove_prefix(length);
    return token;
  }

  // Digits with a decimal point and an exponent, read the same under every
  // locale.
  Token Number() {
    size_t end = 0;
    auto digits = [&] {
      while (end < rest_.size() && IsDigit(rest_[end])) ++end;
    };
    digits();
    if (end < rest_.size() && rest_[end] == L'.') ++end, digits();
    if (end < rest_.size() && (rest_[end] == L'e' || rest_[end] == L'E')) {
      ++end;
      if (end < rest_.size() && (rest_[end] == L'+' || rest_[end] == L'-')) ++end;
      size_t exponent = end;
      digits();
      if (end == exponent) return {Kind::kError};
    }
    std::string narrow(rest_.begin(), rest_.begin() + static_cast<std::ptrdiff_t>(end));
    Token token = Take(Kind::kNumber, end);
    auto [stop, error] = std::from_chars(narrow.data(), narrow.data() + narrow.size(), token.number);
    if (error != std::errc() || stop != narrow.data() + narrow.size()) return {Kind::kError};
    return token;
  }

  Token Text() {
    size_t close = rest_.find(L'"', 1);
    if (close == std::wstring_view::npos) return {Kind::kError};
    Token token{Kind::kText, std::wstring(rest_.substr(1, close - 1))};
    rest_.remove_prefix(close + 1);
    return token;
  }

  std::wstring_view rest_;
};

struct Value {
  bool isText = false;
  double number = 0;
  std::wstring text{};
};

using NumberFunction = double (*)(double);

constexpr std::pair<const wchar_t*, NumberFunction> kNumberFunctions[] = {
    {L"SQRT", [](double x) { return std::sqrt(x); }},
    {L"ABS", [](double x) { return std::fabs(x); }},
    {L"FLOOR", [](double x) { return std::floor(x); }},
    {L"CEIL", [](double x) { return std::ceil(x); }}};

// Recursive descent over one line. Without a model it only checks the
// form; with one it also works out the values, and a value it cannot work
// out fails the parse.
class Parser {
 public:
  Parser(std::wstring_view line, const Model* model) : lexer_(line), model_(model) { Advance(); }

  bool Assignment(std::wstring& name, Value& value) {
    if (token_.kind != Kind::kName) return false;
    name = token_.text;
    Advance();
    if (!Accept(L"=") || !Sum(value)) return false;
    return token_.kind == Kind::kEnd;
  }

 private:
  void Advance() { token_ = lexer_.Next(); }

  bool Is(const wchar_t* op) const { return token_.kind == Kind::kOperator && token_.text == op; }

  bool Accept(const wchar_t* op) {
    if (!Is(op)) return false;
    Advance();
    return true;
  }

  bool Sum(Value& value) {
    if (!Product(value)) return false;
    while (Is(L"+") || Is(L"-")) {
      wchar_t op = token_.text[0];
      Advance();
      Value right;
      if (!Product(right) || !Combine(op, value, right)) return false;
    }
    return true;
  }

  bool Product(Value& value) {
    if (!Signed(value)) return false;
    while (Is(L"*") || Is(L"/")) {
      wchar_t op = token_.text[0];
      Advance();
      Value right;
      if (!Signed(right) || !Combine(op, value, right)) return false;
    }
    return true;
  }

  bool Signed(Value& value) {
    if (Is(L"+") || Is(L"-")) {
      wchar_t op = token_.text[0];
      Advance();
      Value operand;
      if (!Signed(operand)) return false;
      value = Value{};
      return Combine(op, value, operand);
    }
    return Power(value);
  }

  bool Power(Value& value) {
    if (!Primary(value)) return false;
    if (!Accept(L"^")) return true;
    Value exponent;
    return Signed(exponent) && Combine(L'^', value, exponent);
  }

  bool Primary(Value& value) {
    Token token = token_;
    switch (token.kind) {
      case Kind::kNumber:
        Advance();
        value = Value{false, token.number};
        return true;
      case Kind::kText:
        Advance();
        value = Value{true, 0, token.text};
        return true;
      case Kind::kName:
        Advance();
        return Is(L"(") ? Call(token.text, value) : Lookup(token.text, value);
      default:
        if (!Accept(L"(")) return false;
        return Sum(value) && Accept(L")");
    }
  }

  bool Call(const std::wstring& name, Value& value) {
    Advance();
    std::vector<Value> arguments;
    if (!Accept(L")")) {
      do {
        if (!Sum(arguments.emplace_back())) return false;
      } while (Accept(L","));
      if (!Accept(L")")) return false;
    }
    if (!model_) return true;
    if (arguments.size() != 1 || arguments[0].isText) return false;
    double x = arguments[0].number;
    if (SameNoCase(name, L"ITOS")) {
      value = Value{true, 0, std::to_wstring(std::lround(x))};
      return true;
    }
    for (const auto& [known, function] : kNumberFunctions) {
      if (SameNoCase(name, known)) return Finite(function(x), value);
    }
    return false;
  }

  bool Lookup(const std::wstring& name, Value& value) const {
    if (!model_) return true;
    const auto& parameters = model_->def.parameters;
    auto found = std::find_if(parameters.begin(), parameters.end(), [&](const ParameterDef& parameter) {
      return SameNoCase(parameter.name, name);
    });
    if (found == parameters.end()) return false;
    switch (found->type) {
      case PRO_PARAM_DOUBLE:
        value = Value{false, found->number};
        break;
      case PRO_PARAM_INTEGER:
      case PRO_PARAM_BOOLEAN:
        value = Value{false, static_cast<double>(found->integer)};
        break;
      default:
        value = Value{true, 0, found->text};
    }
    return true;
  }

  // Texts join with +; every other operation takes numbers.
  bool Combine(wchar_t op, Value& left, const Value& right) const {
    if (!model_) return true;
    if (left.isText || right.isText) {
      if (op != L'+' || !left.isText || !right.isText) return false;
      left.text += right.text;
      return true;
    }
    double a = left.number;
    double b = right.number;
    switch (op) {
      case L'+':
        return Finite(a + b, left);
      case L'-':
        return Finite(a - b, left);
      case L'*':
        return Finite(a * b, left);
      case L'/':
        return b != 0 && Finite(a / b, left);
      default:
        return Finite(std::pow(a, b), left);
    }
  }

  static bool Finite(double result, Value& value) {
    value = Value{false, result};
    return std::isfinite(result);
  }

  Lexer lexer_;
  const Model* model_;
  Token token_;
};

std::wstring_view Trimmed(std::wstring_view line) {
  while (!line.empty() && IsBlank(line.front())) line.remove_prefix(1);
  while (!line.empty() && IsBlank(line.back())) line.remove_suffix(1);
  return line;
}

bool IsBlankOrComment(std::wstring_view line) {
  std::wstring_view trimmed = Trimmed(line);
  return trimmed.empty() || trimmed.starts_with(L"/*");
}

bool Assign(Model& model, const std::wstring& name, const Value& value) {
  auto& parameters = model.def.parameters;
  auto found = std::find_if(parameters.begin(), parameters.end(),
                            [&](const ParameterDef& parameter) { return SameNoCase(parameter.name, name); });
  if (found == parameters.end()) {
    ParameterDef& created = parameters.emplace_back();
    created.name = UpperCase(name);
    created.type = value.isText ? PRO_PARAM_STRING : PRO_PARAM_DOUBLE;
    created.text = value.text;
    created.number = value.number;
    model.modified = true;
    return true;
  }
  if (value.isText != (found->type == PRO_PARAM_STRING)) return false;
  switch (found->type) {
    case PRO_PARAM_DOUBLE:
      found->number = value.number;
      break;
    case PRO_PARAM_INTEGER:
      found->integer = static_cast<int>(std::lround(value.number));
      break;
    case PRO_PARAM_BOOLEAN:
      found->integer = value.number != 0 ? 1 : 0;
      break;
    default:
      found->text = value.text;
  }
  model.modified = true;
  return true;
}

}  // namespace

bool IsRelationLine(std::wstring_view line) {
  if (IsBlankOrComment(line)) return true;
  std::wstring name;
  Value value;
  return Parser(line, nullptr).Assignment(name, value);
}

bool EvaluateRelations(const std::vector<std::wstring>& lines, Model& model) {
  bool all = true;
  for (const std::wstring& line : lines) {
    if (IsBlankOrComment(line)) continue;
    std::wstring name;
    Value value;
    if (!Parser(line, &model).Assignment(name, value) || !Assign(model, name, value)) all = false;
  }
  return all;
}

}  // namespace sim
