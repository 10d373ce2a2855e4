#include "Ids.h"

#include <herald/messages/ClientMessageTable.h>
#include <herald/messages/ServerMessageTable.h>

#include <string>

#include "Output.h"

namespace Tessel {

namespace {

template <class Row>
void printTable(std::string_view direction, std::span<const Row> rows, Output& output) {
  for (const Row& row : rows) {
    output.write(std::string(direction) + '\t' + std::to_string(row.id) + '\t'
                 + std::string(row.name.empty() ? "-" : row.name) + '\n');
  }
}

}  // namespace

void printIds(Output& output) {
  printTable("fromServer", clientMessageTable(), output);
  printTable("toServer", serverMessageTable(), output);
}

}  // namespace Tessel
