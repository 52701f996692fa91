/// Proposals as their companion program writes them, byte by byte.
#pragma once

#include <QByteArray>

/// Eleven fields on one line, and no more: the number bears the mark.
inline QByteArray MarkedProposal() {
  return "\"FP-1001\",\"1234.5\",\"3/2/2026\",\"2001\",\"Bay Farm, Inc.\",\"1 Dock Rd\",\"Suite 4, rear\",\"Salem\","
         "\"MA\",\"01970\",\"978-555-0100\"\r\n";
}

/// Eighteen fields, one on a line that ends with a line feed alone, and a body.
inline QByteArray PlainProposal() {
  return "1002\n80\n3/5/2026\n2002\n\"Hill, Top & Sons\"\n12 Ridge Road\n\nLynn\nMA\n01901\n781-555-0111\n"
         "\"one\"\n2\n3\n#TRUE#\n5\n6\n7\n\"the body, which nobody reads\n";
}
