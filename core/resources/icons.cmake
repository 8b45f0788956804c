# SPDX-License-Identifier: MIT
kelpa_add_icons(core PREFIX /core/images FOLDER resources/icons
    SIZES ${KELPA_ICON_SIZES}
    ICONS new open save preferences language icon info warning minimize maximize restore close update)

# The icons of the message boxes, and the command icons that are loaded again when the display scale changes.
kelpa_add_icons(core PREFIX /designer/images FOLDER resources/icons
    SIZES ${KELPA_ICON_SIZES}
    ICONS new open save preferences information=info question warning critical)

kelpa_add_icons(core PREFIX /app/images FOLDER resources/icons ICOS app_icon=icon project_icon)
