#include "rom_RowStore.h"

rom_RowSink::~rom_RowSink() = default;

rom_RowSource::~rom_RowSource() = default;
