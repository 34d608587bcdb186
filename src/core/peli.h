// The game context: the farm record with the draws, the channels, the settings and the folders.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "../animals/eläinruutu.h"
#include "../buildings/rakennusruutu.h"
#include "../buildings/talliruutu.h"
#include "../buildings/tarvikeruutu.h"
#include "../contracts/sopimusruutu.h"
#include "../finance/pankkiruutu.h"
#include "../land/peltoruutu.h"
#include "../market/tuoteruutu.h"
#include "../racing/raviruutu.h"
#include "../stats/käyrätruutu.h"
#include "../storage/tallennus.h"
#include "../workforce/työvoimaruutu.h"
#include "arvonta.h"
#include "kanavat.h"
#include "pääruutu.h"
#include "soitin.h"
#include "state.h"

namespace tanhua {

// The nine settings of the installation, read from Asetukset.dat at start.
struct Asetukset {
    Boolean Resoluutio800 = false;
    Boolean Animaatiot = false;
    Integer AnimNopeus = 0;          // 0..100
    Boolean Kursorit = false;
    Boolean Musiikki = false;
    Boolean BiisiSatunnainen = false;
    Boolean Autotallennus = false;
    Boolean Äänitehosteet = false;
    Boolean Prosessorisäästö = false;
};

// Where the game finds its files: the program folder (Kuvat, Äänet, Midi and the shipped Data)
// and the data folder (saves, Savetus.dat, the lists).
struct Kansiot {
    std::filesystem::path ohjelma;
    std::filesystem::path data;
};

// What the main screen shows besides the record, kept here so that the rules can set it
// without a window.
struct Näkymä {
    std::vector<std::string> Lista;      // the event list of the month
    bool ListaNäkyvissä = false;
    bool IkkunaNäkyvissä = false;        // the news window
    std::string IkkunaKuva, IkkunaTeksti;
    std::string PaluuLomake;             // "Työvoima" or "" for the main screen
    bool PääruutuKäytössä = true;        // false while the month's report is open over it
    bool PankkiKäytössä = true;          // false while the market report is open over the bank
    bool RaporttiAuki = false;           // the report screen is showing a page
    bool Hepotalli = false;              // the stable button
    std::string MsgTeksti, MsgVastaus;
    Byte MsgTyyli = 0;
    std::vector<std::string> Sopimuksia;  // contract offers waiting on the phone
    bool Puhelin = false;                // the phone rings: an offer came in since the contracts were last opened
    bool PääruutuNäkyvissä = true;       // false while a sub-screen is open
    bool Command5Käytössä = true, Command9Käytössä = true;  // locked by stars
    std::string Ohje;                    // the hint line
    Lukemat lukemat;                     // the main screen's figures
    int SääKuva = -1;                    // the day's weather picture when the weather gave one of its own
};

// The controls of the start screen and its loading panel.
struct AlkuRuutu {
    std::string Nimesi;
    int Lista = 0;                // 0 "Vapaa ura...", 1 "Kerää miljoonasta...", 2 "10 vuoden..."
    int VTaso = 1;                // 0 Helppo, 1 Normaali, 2 Vaikea
    bool Ohjeita = false;
    bool TP_Valinta = true;
    std::string Viime;            // name of the last saved farm
    bool Command2 = false;        // "Jatka tilannetta" enabled
    bool LatausNäkyvissä = false;
    std::string Texti;
    int palkki = 0;
};

struct Peli {
    Peli(Kanavat& kanavat, Kansiot kansiot) : kanavat(kanavat), kansiot(std::move(kansiot)) {}

    Muuttujat m;
    Arvonta arvonta;
    Kanavat& kanavat;
    Asetukset asetukset;
    Kansiot kansiot;
    Näkymä näkymä;
    AlkuRuutu alku;
    EläinRuutuTila eläinruutu;   // the animal screen's choice while it is open
    TuoteRuutuTila tuoteruutu;   // the product screen's choice while it is open
    RakennusRuutuTila rakennusruutu;  // the building screen's choice and day labels
    TyövoimaRuutuTila työvoimaruutu;  // the staff screen's list, choice and labels
    PankkiRuutuTila pankkiruutu;      // the bank screen's labels and sheets
    TarvikeRuutuTila tarvikeruutu;    // the supplies screen's lists, choice and labels
    TilanneRuutuTila tilanneruutu;    // the save panel's name box and listed saves
    PeltoRuutuTila peltoruutu;        // the land screen's card, lot and forester's panel
    KylvöRuutuTila kylvöruutu;        // the sowing plan and its sheet
    NostoRuutuTila nostoruutu;        // the harvest estimate and its sheet
    KäyrätRuutuTila käyrätruutu;      // the statistics screen's labels and plot
    RaviRuutuTila raviruutu;          // the race-betting screen, fresh at each opening
    TalliRuutuTila talliruutu;        // the stable screen's sheets and the month's riding ledger
    Soitin soitin;                    // the songs and the music player's panel
    SopimusRuutuTila sopimusruutu;    // the contracts screen's call, sheets and choice
    // On while a save's values are read: the switches it sets stay silent.
    bool Ladataan = false;
    bool käynnissä = false;   // a farm has been started or opened
    // The day's store load while a day runs: taken once, before the herd's output, and read by
    // every shift of the day, so goods made later today don't block today's work.
    std::optional<double> päivänKuorma;
    // The herd's feed estimate as the day's feeding took it, which the feed plant reads.
    std::optional<Long> päivänRehuTarve;
    // The season value of the day's season block: worked out at its head, raised by pollination.
    std::optional<double> päivänKausiarvo;
};

}  // namespace tanhua
