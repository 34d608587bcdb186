// Every value of the farm record by the name the game writes it (Var_Maito, El_Lehmä, Tuotteet.rulla).
#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "laskenta.h"

namespace tanhua {

struct Peli;

using KenttäOsoitin = std::variant<Integer*, Long*, Single*, Byte*, Boolean*, double*, std::string*,
                                   std::vector<std::string>*>;

struct Kenttä {
    std::string nimi;
    KenttäOsoitin osoitin;
};

// The values of the record and the settings, in the order of the record.
std::vector<Kenttä> Kentät(Peli& peli);
std::optional<Kenttä> EtsiKenttä(Peli& peli, const std::string& nimi);
// Whether the name is one of the nine settings of the installation rather than a value of the farm.
bool OnAsetus(const std::string& nimi);

// The value as text: a number as Str writes it without the leading blank, a Boolean True/False,
// a text as it is, a list its items joined by commas.
std::string KentänArvo(const Kenttä& kenttä);
// Stores a text into the value by its width: a number is rounded and checked as any store is
// (failure 13 for a text that isn't a number, 6 for one that doesn't fit); a Boolean takes
// True or False.
void AsetaKenttä(const Kenttä& kenttä, const std::string& arvo);

}  // namespace tanhua
