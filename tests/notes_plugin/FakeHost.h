#pragma once

#include "notes/NotesProject.h"
#include "platform/fake/FakePlatform.h"
#include "project/CKeyValueStore.h"
#include "project/ProjectTree.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace dyeworks::plugins {

/// The project that the host functions of this program act on.
struct Host {
    CKeyValueStore store;
    ProjectTree tree;
    int changes = 0; ///< Of the store.
};

extern std::unique_ptr<Host> host;

/// An empty project with a tree, whose file is read anew to see what it holds.
class NotesTest : public testing::Test {
protected:
    NotesTest();
    ~NotesTest() override;

    /// Titles with those below them in parentheses: "a(b,c(d)),e".
    static std::string outline(const Note& note);
    /// Expects that the notes are these, that the tree shows them and that the project's file has them and
    /// nothing else, in their order.
    static void expectNotes(NotesProject& project, const std::string& expected);
    /// Notes as the file has them.
    static void readAgain(NotesProject& project);
    static Note& note(NotesProject& project, const char* below);

    FakePlatform platform_;
};

} // namespace dyeworks::plugins
