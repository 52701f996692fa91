/// Changes an input at random, always in the same way for the same seed: bits and bytes, pieces cut out, doubled or
/// brought in from another input, and what the file formats are made of.
#pragma once

#include <QByteArray>
#include <random>
#include <vector>

class Mutator {
 public:
  explicit Mutator(quint64 seed) : m_random(seed) {}

  /// One of the inputs with one to eight changes, at most `longest` bytes.
  QByteArray Next(const std::vector<QByteArray>& inputs, qsizetype longest);

 private:
  /// From 0 up to `below`, which isn't reached; 0 where that is 0.
  qsizetype Below(qsizetype below);
  void Change(QByteArray& input, const std::vector<QByteArray>& inputs);
  void SetBytes(QByteArray& input);
  void MovePieces(QByteArray& input, const std::vector<QByteArray>& inputs);
  QByteArray Piece(const QByteArray& input);

  std::mt19937_64 m_random;
};
