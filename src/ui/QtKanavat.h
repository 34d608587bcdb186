// The channels of the game in the window: real dialogs, the news window, the event list, the report, sound.
#pragma once

// own
#include "Ääni.h"
#include "core/kanavat.h"

namespace tanhua::ui {

class Pääikkuna;

class QtKanavat : public Kanavat {
public:
    explicit QtKanavat(std::filesystem::path ohjelmakansio) : soitin_(std::move(ohjelmakansio)) {}
    void Liitä(Pääikkuna* ikkuna) { ikkuna_ = ikkuna; }

    std::string Kysy(const std::string& teksti, int tyyli) override;
    void Kerro(const std::string& kuva, const std::string& teksti) override;
    void OdotaIkkunaa() override;
    void ListaRivi(const std::string& rivi) override;
    void Raportti(const RaporttiSivu& sivu) override;
    void Loppu() override;
    void Laatikko(const std::string& teksti) override;
    std::string Kehote(const std::string& kysymys, const std::string& oletus) override;
    std::string KehoteOtsikolla(const std::string& kysymys, const std::string& otsikko,
                                const std::string& oletus) override;
    void Ääni(const std::string& nimi) override;
    bool ÄäniLaite() override;
    void MidiAlusta() override;
    void MidiSoita(const std::string& tiedosto) override;
    void MidiPysäytä() override;
    void MidiLopeta() override;
    bool Vikalaatikko(const std::string& paikka, int numero, const std::string& teksti) override;
    void Lataus(const std::string& texti, int palkki) override;
    void Kuvakaappaus() override;

private:
    Pääikkuna* ikkuna_ = nullptr;
    ÄäniSoitin soitin_;
};

}  // namespace tanhua::ui
