#pragma once

namespace Tessel {

class Output;

/// Writes the ids of the messages, then those of the requests, with their classes.
void printIds(Output& output);

}  // namespace Tessel
