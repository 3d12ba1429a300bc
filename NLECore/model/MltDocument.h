// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/NLETypes.h"
#include "NLECore/model/DocumentFormat.h"

#include <QByteArray>

#include <cstdint>
#include <vector>

namespace nle {

/// A filter, a transition or a link.
struct MltEffect
{
    DocumentFields properties; ///< with those that stood as attributes

    QString Service() const;
    /// Whether the document has turned it off.
    bool IsOff() const;
};

/// What stands on a playlist, or a track of a tractor.
struct MltItem
{
    int service = -1;       ///< among the document's; -1 for a blank, and for a name of nothing
    std::int64_t blank = 0; ///< frames, for a blank
    QString in;
    QString out;
    int repeat = 1; ///< how often it plays, one behind the other
    QString hide;   ///< video, audio or both: what of a track is off
    std::vector<MltEffect> filters;
};

/// A producer, chain, playlist or tractor.
struct MltService
{
    QString element;
    QString id;
    DocumentFields properties; ///< with those that stood as attributes
    QString in;
    QString out;
    std::vector<MltItem> items;
    std::vector<MltEffect> filters;
    std::vector<MltEffect> transitions;
    std::vector<MltEffect> links;

    bool HoldsClips() const;
    /// Whether it was written by this engine.
    bool IsOwn() const { return properties.contains(document::kKind); }
};

/// An MLT XML document as it is written: nothing in it is run or opened.
struct MltDocument
{
    NLESize size = {0, 0};          ///< 0 where the document says nothing
    NLERational frameRate = {0, 1}; ///< 0 where the document says nothing
    QString root;                   ///< folder that relative names start from; empty: its own
    /// Each after those that it refers to.
    std::vector<MltService> services;
    int last = -1;          ///< the service that plays; -1: none
    int lostReferences = 0; ///< uses of names that name nothing so far
};

/// Reads the XML. False, with \a error, when it is none or another kind of document.
bool ReadMlt(const QByteArray& text, MltDocument* result, QString* error);

/// Frames of a time as the framework reads it: frames, or a clock value with ":" between its parts,
/// whose seconds have a fraction behind "." or ",", or frames behind one more ":" or ";". Hours,
/// minutes and seconds become frames one by one. \a preset when the text is empty or none of these.
std::int64_t MltFrames(const QString& text, const NLERational& rate, std::int64_t preset);

/// A number with the decimal sign of any locale; \a preset when the text begins with none.
double MltNumber(const QString& text, double preset);
/// The same without its fraction, at most as far from zero as an int can be.
int MltInt(const QString& text, int preset);

} // namespace nle
