#pragma once

/// The lines that every queue description begins with.
inline constexpr const char* ppdOpening =
    "*PPD-Adobe: \"4.3\"\n"
    "*FormatVersion: \"4.3\"\n"
    "*FileVersion: \"1.0\"\n"
    "*LanguageVersion: English\n"
    "*LanguageEncoding: ISOLatin1\n"
    "*PCFileName: \"TEST.PPD\"\n"
    "*Manufacturer: \"Kesto\"\n"
    "*Product: \"(Test)\"\n"
    "*ModelName: \"Kesto Test\"\n"
    "*ShortNickName: \"Kesto Test\"\n"
    "*NickName: \"Kesto Test\"\n"
    "*PSVersion: \"(3010.000) 0\"\n";
