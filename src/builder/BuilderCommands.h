// SPDX-License-Identifier: MIT
#pragma once

class FormBuilder;
class frmZOB;

//! The builder's toolbar TB_MDI (New, Open, Close, Save, Print, Calculations, Help) and its menus:
//! File (mnuFileOptions(0..9), with Save As and Print inert) and Help. Each command runs under the
//! window's error handler.
void buildBuilderCommands(frmZOB &window, FormBuilder &b);
