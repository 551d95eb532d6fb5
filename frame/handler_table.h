// A board's events bound to its own member functions by the handlers' names:
// one table for arrays of elements, whose handlers take the index, and one
// for single elements and menu entries.
#pragma once

#include <initializer_list>
#include <type_traits>
#include <utility>

#include "toolkit/form.h"

namespace vrask {

template <class Board>
using IndexedHandlers = std::initializer_list<std::pair<const char*, void (Board::*)(int)>>;
template <class Board>
using PlainHandlers = std::initializer_list<std::pair<const char*, void (Board::*)()>>;

template <class Board>
void bindHandlers(Board& board, std::type_identity_t<IndexedHandlers<Board>> indexed,
                  std::type_identity_t<PlainHandlers<Board>> plain = {}) {
  for (const auto& [name, fn] : indexed) {
    board.handleIndexed(name, [&board, fn = fn](int i) { (board.*fn)(i); });
  }
  for (const auto& [name, fn] : plain) board.handle(name, [&board, fn = fn] { (board.*fn)(); });
}

}  // namespace vrask
