// The runner's operations of sound and music: a sound by name, the player's notice of a song's
// end, the panel's buttons and its badge on the main screen. The runner's player is silent and
// always stands; a song ends only when the script calls DirectXEvent8_DXCallback.
#include <optional>
#include <string>
#include <vector>

#include "core/musiikki.h"
#include "core/viestit.h"
#include "skripti.h"

namespace tanhua {

namespace {

// The main form's height in the game's units, for the panel's slide (the runner shows no slide).
constexpr int LOMAKKEEN_KORKEUS = 600;

Toiminto SoittimenNappi(const char* ohjain, void (*f)(Peli&)) { return Painallus(ohjain, f); }

}  // namespace

void SoittimenToiminnot(Toimintoluettelo& t) {
    Toiminto ääni{1, 1, [](Peli& peli, const std::vector<std::string>& a) { SoitaÄäni(peli, a[0]); }};
    ääni.tilaton = true;
    t["SoitaÄäni"] = ääni;
    t["SeuraavaKappale"] = Pelkkä(SeuraavaKappale);
    t["DirectXEvent8_DXCallback"] = Toiminto{1, 1, [](Peli& peli, const std::vector<std::string>& a) {
        std::optional<int> vaihtoehto;
        if (a[0] != "none")
            vaihtoehto = static_cast<int>(Luku(a[0], "the notice's option", -2147483648LL, 2147483647LL));
        DirectXEvent8_DXCallback(peli, vaihtoehto);
    }};
    t["Player.cmdPlayer1"] = SoittimenNappi("Player.cmdPlayer1", SoitinArvo);
    t["Player.cmdPlayer2"] = SoittimenNappi("Player.cmdPlayer2", SoitinSeuraava);
    t["Player.stoppi"] = SoittimenNappi("Player.stoppi", SoitinStop);
    t["Player.cmdPlayer3"] = SoittimenNappi("Player.cmdPlayer3", [](Peli& peli) { PiilotaSoitin(peli, 0); });
    t["Tanhua.PlayerLogo"] =
        SoittimenNappi("Tanhua.PlayerLogo", [](Peli& peli) { AvaaSoitin(peli, LOMAKKEEN_KORKEUS); });
}

}  // namespace tanhua
