#pragma once
#include "engine/Game.h"

// The people of the three plays.

namespace Samples {

using CardRoom::Person;

/// The player at the client whose connection is recorded.
inline const Person USER = {4001, L"Marigold", L"Utrecht"};
inline const Person AASE = {4002, L"Åse_Bjørk", L"Ålesund"};
inline const Person DUC = {4003, L"Đức88", L"Huế"};
inline const Person CHLOE = {4004, L"Chloé", L"Saint-Étienne"};
inline const Person KWAME = {4005, L"Kwame_K", L"Kumasi"};
inline const Person XIAOMING = {4006, L"王小明", L"臺北"};
inline const Person JOKER = {4007, L"Joker\U0001F0CF", L"São Paulo"};
inline const Person ALISA = {4008, L"\U0001F0A1lisa", L"Łódź"};
inline const Person OMAR = {4009, L"عمر", L"الإسكندرية"};
inline const Person ELENI = {4010, L"Ελένη", L"Πάτρα"};

}  // namespace Samples
