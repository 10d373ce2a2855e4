#pragma once

namespace Samples {

class Capture;

/// An evening at one table: hold'em without limit and a hand of draw.
void playTable(Capture& capture);
/// A visit to the lobby, from the welcome to the server's shutdown.
void playLobby(Capture& capture);
/// A sit-and-go with rebuys and an add-on, from its announcement to the last knock-out, and two private tournaments.
void playTournament(Capture& capture);

}  // namespace Samples
