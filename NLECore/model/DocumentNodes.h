// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/CompositeNode.h"
#include "NLECore/model/DocumentFormat.h"
#include "NLECore/model/DocumentLanes.h"
#include "NLECore/model/DocumentRemarks.h"
#include "NLECore/model/SettingsText.h"
#include "NLECore/model/SourceNodes.h"

#include <QDir>
#include <QMap>

#include <set>

namespace nle {

/// A rate as "num/den".
QString RateText(const NLERational& rate);
/// What RateText gave; 0/1 when it is none.
NLERational ParseRate(const QString& text);
/// A colour as "#aarrggbb".
QString ColorText(std::uint32_t argb);

/// What only documents of this engine say of \a node, which was the \a order -th of its parent.
/// Files below \a folder are named relative to it.
DocumentTexts OwnTexts(const TimelineNode& node, int order, const QDir& folder);

/// The background that a document of \a composite has as its lowest track.
std::uint32_t DocumentBackground(const CompositeNode& composite);

/// A clip with what decides its place among others.
struct PlacedNode
{
    NLEComPtr<TimelineNode> node;
    int order;
    int track; ///< by which the document names the one that it was on
};

/// Makes nodes of what a document says, whatever its format.
class DocumentNodes
{
public:
    /// Relative names of files start from \a folder.
    explicit DocumentNodes(const QDir& folder) : profile(kDefaultProfile), m_folder(folder) {}

    /// A folder that the document itself names: files that are there are preferred.
    void SetRoot(const QString& folder);
    /// Describes the files of all these names, several at a time; what is not there is offline.
    void DescribeMedia(const std::set<QString>& names);
    /// The file of a name that was described; offline for any other.
    std::shared_ptr<const MediaInfo> MediaOf(const QString& name) const;
    /// False when the document asks for more nodes than one may have; counts with each call.
    bool TakeOne();

    NLEComPtr<TimelineNode> MakeMedia(const QString& name, const DocumentFields& properties);
    NLEComPtr<TimelineNode> MakeColor(std::uint32_t argb, const DocumentFields& properties);
    NLEComPtr<TimelineNode> MakeText(const QString& text, const QString& family,
                                     const DocumentFields& properties);
    /// A title with what \a properties keep of it, and the text and font that the document says.
    NLEComPtr<TimelineNode> MakeTitle(const QString& text, const QString& family,
                                      const DocumentFields& properties);
    /// Whether \a properties are those of a transition.
    static bool IsTransition(const DocumentFields& properties);
    /// One of an unknown name becomes a dissolve, with a remark.
    NLEComPtr<TimelineNode> MakeTransition(const DocumentFields& properties);
    /// The outermost one of a document without \a properties of this engine is a project.
    NLEComPtr<CompositeNode> MakeComposite(const DocumentFields& properties, bool isRoot);
    /// Puts clips into \a composite in the order that they were saved in, and its own settings.
    void Fill(CompositeNode& composite, std::vector<PlacedNode>& clips,
              const DocumentFields& properties);
    /// Brings a node that was made here, or that another program made, to where \a found says.
    /// Where \a found is what was saved with the node, the node's own values hold: they know more
    /// than a document can say.
    static void Place(TimelineNode& node, const DocumentFields& properties, const Placement& found,
                      int level);

    /// Lets \a node show one frame, or play \a speed times as fast; below 0, which there is not,
    /// forwards, with a remark that calls it \a name.
    void SetPlaying(const std::optional<int>& frozen, double speed, const QString& name,
                    TimelineNode& node);
    static bool IsSameSpeed(double a, double b);
    /// Leaves out the picture or the sound of a clip, or both, as a track of a document says,
    /// beside what is left out of it already.
    static void Hide(bool picture, bool sound, TimelineNode& node);

    /// Frame rate and size of the document.
    tagNLEProjectProfile profile;
    DocumentRemarks remarks;

private:
    void Apply(const DocumentFields& properties, TimelineNode& node);
    NLESize SizeOf(const DocumentFields& properties) const;
    QString PathOf(const QString& name) const;

    const QDir m_folder;
    QString m_root;
    QMap<QString, std::shared_ptr<const MediaInfo>> m_media;
    int m_made = 0;
};

} // namespace nle
