// Channels that record everything the game tells and answer its questions from a queue.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "core/kanavat.h"
#include "core/viestit.h"

namespace tanhua {

class TallentavatKanavat : public Kanavat {
public:
    std::string Kysy(const std::string& teksti, int tyyli) override;
    void Kerro(const std::string& kuva, const std::string& teksti) override;
    void ListaRivi(const std::string& rivi) override;
    void Raportti(const RaporttiSivu& sivu) override;
    void Alue(const RaporttiSivu& alue) override;
    void Loppu() override;
    void Laatikko(const std::string& teksti) override;
    std::string Kehote(const std::string& kysymys, const std::string& oletus) override;
    void Ääni(const std::string& nimi) override;
    // The runner's player is silent and always stands; a song ends only when the script says so.
    void MidiSoita(const std::string& tiedosto) override;
    void MidiPysäytä() override;
    bool Vikalaatikko(const std::string& paikka, int numero, const std::string& teksti) override;

    // Answers given in advance, taken one a question.
    std::deque<std::string> vastaukset;
    // What was told since the last read, one line each in the runner's event format.
    std::vector<std::string> tapahtumat;
    // The last failure box's whole text, for tests of the reporter.
    std::string viimeisinVikateksti;
    std::vector<RaporttiSivu> raportit;
    // The game has ended the program since the runner last looked.
    bool loppu = false;

private:
    std::string SeuraavaVastaus(const std::string& oletus);
    // A printed page or area: its heading line, then a RIVI line for each printed line.
    void Rivit(const char* otsake, const RaporttiSivu& sivu);
};


}  // namespace tanhua
