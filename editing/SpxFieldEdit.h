// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxCommand.h>
#include <scopix/editing/SpxFieldPointer.h>
#include <scopix/editing/SpxSetFieldCommand.h>

#include <memory>
#include <type_traits>
#include <utility>

class QString;

/// The gate of an edit: every edit of a field takes the same three steps. The command is built while the
/// field has its old value, then the field is written, then the host takes the command over for undo. Without
/// a host the field is written all the same and the command is dropped. All return whether the edit was
/// recorded. GUI thread only.
///
///     SpxFieldEdit::write(&light->direction, [&] { light->direction.setValue(direction); });
namespace SpxFieldEdit
{

/// True while the host shows former values (SpxPreviewServices): nothing may be edited then, which the user
/// is told. All below ask by themselves.
SPX_EDITING_API bool isRefused();
/// Hands a command to the host; false without a host, and for null.
SPX_EDITING_API bool record(std::unique_ptr<SpxCommand> command);
/// As above; where the host can, it names the step by the field, selected or not.
SPX_EDITING_API bool record(std::unique_ptr<SpxCommand> command, const SoField& edited);

/// For a command of your own, built just now. Nothing is recorded when `write` returns false (it may return
/// nothing), or when the field was destroyed by its own write, as by a callback that replaces the node.
template <class Write>
bool apply(SoField* field, std::unique_ptr<SpxCommand> command, Write&& write)
{
    if (isRefused())
        return false;
    const SpxFieldPointer written(field);
    if constexpr (std::is_same_v<std::invoke_result_t<Write>, bool>) {
        if (!write())
            return false;
    } else {
        write();
    }
    return written && record(std::move(command), *written.get());
}

/// `write` writes the field, in whatever way its type offers. A field of a type that cannot be instantiated
/// is written too, but not recorded: there is nothing to keep its old value in.
template <class Write>
bool write(SoField* field, Write&& write)
{
    auto command = std::make_unique<SpxSetFieldCommand>(field);
    if (!command->canUndo())
        command.reset();
    return apply(field, std::move(command), std::forward<Write>(write));
}

/// Takes over the value of another field, converted where the types differ; false where there is no
/// conversion.
SPX_EDITING_API bool setValue(SoField* field, const SoField& value);
/// False, and the field stays as it is, for text that is no value of the field's type.
SPX_EDITING_API bool setText(SoField* field, const QString& text);
/// Gives the field the value that it has in a new node of the same type; false where no such node can be
/// made.
SPX_EDITING_API bool setToDefault(SoField* field);
/// Lets the field follow another one, or none (null), which the field then no longer follows but keeps its
/// value; false where that changes nothing, the types do not convert or a loop would close.
SPX_EDITING_API bool setSource(SoField* field, SoField* source);
/// False where the field's flag is so already.
SPX_EDITING_API bool setIgnored(SoField* field, bool ignored);

} // namespace SpxFieldEdit
