// The controls of the music player: its badge on the main screen, the panel Player and its song list.
#include "musiikki.h"
#include "ohjaimet.h"
#include "peli.h"

namespace tanhua {

namespace {

Ohjain Nappi(const Peli& p, const char* teksti, const char* vihje) {
    Ohjain o = Näkyvä(teksti);
    o.vihje = vihje;
    o.näkyvissä = p.soitin.Näkyvissä;
    return o;
}

}  // namespace

void SoittimenOhjaimet(Ohjainluettelo& l) {
    const RuudunOhjaimet tanhua(l, "Tanhua");
    tanhua("PlayerLogo", [](const Peli& p) {
        Ohjain o = Näkyvä("PlayerLogo.gif", p.näkymä.PääruutuKäytössä);
        o.vihje = "Avaa midi soittolista";
        return o;
    });

    const RuudunOhjaimet player(l, "Player");
    player("Caption", [](const Peli& p) { return JosNäkyy(p.soitin.Näkyvissä, [] { return "Tanhua Midi player"; }); });
    player("cmdPlayer1", [](const Peli& p) { return Nappi(p, "Arvo", "Arvotaan seuraava kappale"); });
    player("cmdPlayer2", [](const Peli& p) { return Nappi(p, "Seuraava", "Seuraava kappale"); });
    player("stoppi", [](const Peli& p) { return Nappi(p, "Stop", "Play/Stop"); });
    player("cmdPlayer3", [](const Peli& p) { return Nappi(p, "Piilota soitin", "Sulje soitin"); });
    player("Label1", [](const Peli& p) { return JosNäkyy(p.soitin.Näkyvissä, [] { return "Soittolista"; }); });
    player("SoivaBiisi", [](const Peli& p) { return JosNäkyy(p.soitin.Näkyvissä, [] { return "Tanhuan levyautomaatti"; }); });
    player("MidiFile", [](const Peli& p) {
        return JosNäkyy(p.soitin.Näkyvissä, [&] {
            std::string t;
            for (const std::string& kappale : p.soitin.MidiFile) t += (t.empty() ? "" : "|") + kappale;
            return t;
        });
    });

    // The list's row and count and the player's state, read whether the panel is out or not.
    const RuudunOhjaimet lista(l, "MidiFile");
    lista("ListIndex", [](const Peli& p) { return Näkyvä(std::to_string(p.soitin.ListIndex)); });
    lista("ListCount", [](const Peli& p) { return Näkyvä(std::to_string(p.soitin.MidiFile.size())); });
    l["MidiValmis"] = {[](const Peli& p, int) { return Näkyvä(p.soitin.MidiValmis ? "True" : "False"); }};
}

}  // namespace tanhua
