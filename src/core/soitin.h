// The music player's state: the song list of the folder Midi and the player panel.
#pragma once

#include <string>
#include <vector>

namespace tanhua {

struct Soitin {
    // MidiFile: the songs (*.mid of the folder Midi), sorted by name; ListIndex is the selected
    // row from 0, -1 with none.
    std::vector<std::string> MidiFile;
    int ListIndex = -1;
    // The player stands: the synthesiser and its soundfont opened.
    bool MidiValmis = false;
    // The main form has started the player once in this run of the program.
    bool käynnistetty = false;
    // The panel Player is out on the main screen.
    bool Näkyvissä = false;
};

}  // namespace tanhua
