// Sound documents of Studio, and what must hold of every document that was loaded.
#pragma once

#include "Mutation.h"

#include "studio/document/PageContents.h"

/// A drawn object of a kind, with behaviours.
Studio::ObjectPtr SampleObject(Lumo::DrawShape kind);

/// Documents that together hold every class, group depth and kind of behaviour.
std::vector<Studio::DocumentContents> SampleDocuments();

/// A small PNG file.
Bytes SamplePicture();

/// The document's archive.
Bytes ArchivedContents(const Studio::DocumentContents& contents);

/// Throws `Fault` unless every object is there once, of a known class, and within the bounds of a page.
void RequireSound(const std::vector<Studio::ObjectPtr>& objects);
void RequireSound(const Studio::DocumentContents& contents);
