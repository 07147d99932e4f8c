#pragma once

#include "dbc_Bytes.h"
#include "mem_Array.h"

/// A run stands for this many cells at most. So the bytes of a file bound the memory that its columns can ask for:
/// a run takes two bytes or more, which is 4096 bytes of cells for a byte of the file.
inline constexpr std::size_t dbc_MaxRun = 1024;

/// Appends a column in the smallest of its forms. Cell is uint32_t, uint64_t or double.
template <class Cell>
void dbc_EncodeColumn(mem_Array<Cell> const& cells, dbc_ByteWriter& out);

/// Reads a column of `count` cells. Nothing is allocated that the bytes left in the section do not justify.
template <class Cell>
mem_Array<Cell> dbc_DecodeColumn(dbc_ByteReader& in, std::size_t count);
