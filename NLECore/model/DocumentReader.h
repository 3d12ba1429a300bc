// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/CompositeNode.h"
#include "NLECore/model/DocumentFormat.h"

#include <QDir>
#include <QHash>
#include <QSet>
#include <QStringList>
#include <QXmlStreamReader>

#include <vector>

namespace nle {

/// Reads a node from MLT XML, written here or by another editor.
///
/// Of a foreign document the clips on its tracks are taken: media files, colours and texts. Nothing
/// in the document is run; effects and transitions of others are left out.
class DocumentReader
{
public:
    /// Relative media names start from \a folder.
    DocumentReader(const QByteArray& text, const QDir& folder);

    /// The document's root node; null on failure.
    NLEComPtr<TimelineNode> Read();
    /// What was wrong.
    QString Error() const { return m_error; }

private:
    using Properties = QHash<QString, QString>;

    /// A blank or a use of another service.
    struct Item
    {
        QString producer;
        std::int64_t blank = 0;
        QString in;
        QString out;
    };
    /// A producer, playlist or tractor.
    struct Service
    {
        QString element;
        Properties properties;
        QString in;
        QString out;
        std::vector<Item> items;
    };
    /// A clip with what decides its place among others.
    struct Placed
    {
        NLEComPtr<TimelineNode> node;
        int order;
    };

    void ReadDocument();
    void ReadProfile();
    void ReadService(const QString& element);
    void ReadProperty(Properties& properties);
    /// The names of all files that \a root and what it holds need, each once.
    QStringList MediaNames(const QString& root) const;
    /// Fills m_media.
    void DescribeMedia(const QString& root);
    NLEComPtr<TimelineNode> Make(const QString& id);
    NLEComPtr<TimelineNode> MakeProducer(const Service& service);
    NLEComPtr<TimelineNode> MakeMedia(const Properties& properties);
    NLEComPtr<TimelineNode> MakeComposite(const Service& service);
    void ReadTrack(const Service& track, int index, std::vector<Placed>& clips);
    void PlaceEntry(const Item& item, std::int64_t position, int level, bool unplaced,
                    std::vector<Placed>& clips);
    /// Frames that an entry shows of its producer.
    NLERange RangeOf(const Item& item) const;
    void ApplyCommon(const Properties& properties, TimelineNode& node);
    bool IsBackground(const QString& id) const;
    std::int64_t Frames(const QString& text, std::int64_t preset) const;

    QXmlStreamReader m_xml;
    const QDir m_folder;
    QString m_error;
    tagNLEProjectProfile m_profile;
    QHash<QString, Service> m_services;
    /// Files by their names in the document, offline where they are not there.
    QHash<QString, std::shared_ptr<const MediaInfo>> m_media;
    QString m_root;
    QString m_lastService;
    QSet<QString> m_open;
    int m_made = 0;
};

} // namespace nle
