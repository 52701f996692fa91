#include "fuzz/Mutator.h"

#include <array>
#include <string_view>

namespace {

using namespace std::string_view_literals;

/// What the readers look for, and the numbers at the edges of what they hold.
constexpr std::array Words{"\""sv,
                           "\"\""sv,
                           ","sv,
                           "\r\n"sv,
                           "\n"sv,
                           "\r"sv,
                           " "sv,
                           "\0"sv,
                           "#TRUE#"sv,
                           "#FALSE#"sv,
                           "True"sv,
                           "False"sv,
                           "$"sv,
                           "("sv,
                           ")"sv,
                           "-"sv,
                           "+"sv,
                           "."sv,
                           "0"sv,
                           "1E308"sv,
                           "1E-308"sv,
                           "-1E999"sv,
                           "1E2147483648"sv,
                           "nan"sv,
                           "inf"sv,
                           "32767"sv,
                           "32768"sv,
                           "-32769"sv,
                           "255"sv,
                           "256"sv,
                           "2147483647"sv,
                           "2147483648"sv,
                           "-2147483649"sv,
                           "922337203685477.5807"sv,
                           "922337203685477.5808"sv,
                           "($922,337,203,685,477.58)"sv,
                           "18446744073709551616"sv,
                           "3/7/2026"sv,
                           "2/29/2025"sv,
                           "0/0/0"sv,
                           "12/31/9999"sv,
                           ".."sv,
                           "/"sv,
                           "\\"sv,
                           "../../x"sv,
                           "FP"sv,
                           "Hrs"sv,
                           "Business"sv,
                           "All"sv,
                           "\x80\x81\x8d\x9f\xff"sv,
                           "\x1a"sv,
                           "\xff\xff\xff\xff\xff\xff\xff\x7f"sv,
                           "\0\0\0\0\0\0\0\x80"sv,
                           "\0\0\0\0\0\0\xf0\x7f"sv,
                           "\1\0\0\0\0\0\xf8\x7f"sv};

}  // namespace

QByteArray Mutator::Next(const std::vector<QByteArray>& inputs, qsizetype longest) {
  QByteArray input = inputs.at(static_cast<std::size_t>(Below(static_cast<qsizetype>(inputs.size()))));
  for (qsizetype changes = 1 + Below(8); changes > 0; --changes) Change(input, inputs);
  input.truncate(longest);
  return input;
}

qsizetype Mutator::Below(qsizetype below) {
  return below == 0 ? 0 : static_cast<qsizetype>(m_random() % static_cast<quint64>(below));
}

void Mutator::Change(QByteArray& input, const std::vector<QByteArray>& inputs) {
  switch (Below(4)) {
    case 0:
      return SetBytes(input);
    case 1:
      return MovePieces(input, inputs);
    case 2: {
      const std::string_view word = Words.at(static_cast<std::size_t>(Below(Words.size())));
      input.insert(Below(input.size() + 1), word.data(), static_cast<qsizetype>(word.size()));
      return;
    }
    default: {
      const std::string_view word = Words.at(static_cast<std::size_t>(Below(Words.size())));
      const auto size = static_cast<qsizetype>(word.size());
      input.replace(Below(input.size() + 1), size, word.data(), size);
      return;
    }
  }
}

void Mutator::SetBytes(QByteArray& input) {
  if (input.isEmpty()) return;
  const qsizetype at = Below(input.size());
  const auto byte = static_cast<unsigned char>(input[at]);
  if (Below(2) == 0) {
    input[at] = static_cast<char>(byte ^ (1U << Below(8)));
  } else {
    input[at] = static_cast<char>(Below(256));
  }
}

void Mutator::MovePieces(QByteArray& input, const std::vector<QByteArray>& inputs) {
  const qsizetype at = Below(input.size() + 1);
  switch (Below(4)) {
    case 0:
      input.truncate(at);
      break;
    case 1:
      input.remove(at, 1 + Below(input.size()));
      break;
    case 2:
      input.insert(at, Piece(input));
      break;
    default:
      input.insert(at, Piece(inputs.at(static_cast<std::size_t>(Below(static_cast<qsizetype>(inputs.size()))))));
  }
}

QByteArray Mutator::Piece(const QByteArray& input) {
  const qsizetype begin = Below(input.size() + 1);
  return input.mid(begin, 1 + Below(input.size() - begin));
}
