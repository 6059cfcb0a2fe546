; One yard, from its beginning until it is left.

kStepTicks      equ 8                   ; a step takes as long
kSlideTicks     equ 4                   ; a further cell on ice
kDoneTicks      equ 80                  ; from the last push to the panel
kUndoFirst      equ 24                  ; ticks until a held key takes back a second move,
kUndoEach       equ 7                   ; and the next ones

; Plays the yard [level]. Carry: another one, or the same again, is to be played; it is in [level].
PlayLevel:
        call    BeginLevel
        call    DrawPlayFrame
        call    FadeIn
        call    ForgetKeys
        call    TakeTicks
.frame: call    TakeTicks
        mov     [frame_ticks], ax
        mov     cx, ax
        call    MoveSnow
        call    Walk
        cmp     word [walk_all], 0
        jne     .draw
        call    ShowDone
        mov     byte [play_ends], kStay
        call    HandleKey
        cmp     byte [play_ends], kStay
        jne     .ends
.draw:  call    DrawPlayFrame
        jmp     .frame
.ends:  mov     byte [snow_rises], 0
        cmp     byte [play_ends], kLeave
        je      .leave
        cmp     byte [play_ends], kAgain
        je      .again
        mov     ax, [level]
        inc     ax
        cmp     ax, kLevels
        jae     .leave
        mov     [level], ax
.again: stc
        ret
.leave: clc
        ret

kStay           equ 0                   ; what `play_ends` says
kLeave          equ 1
kAgain          equ 2
kNext           equ 3

BeginLevel:
        call    LoadLevel
        call    DrawGround
        mov     byte [is_done], 0
        mov     word [walk_all], 0
        mov     word [walk_ticks], 0
        mov     byte [way_key], 0
        mov     word [lifted], -1
        jmp     DrawRest

; A yard that is done can be looked at for a moment before the panel covers it.
ShowDone:
        cmp     byte [is_done], 0
        je      .done
        cmp     word [done_ticks], kDoneTicks
        jae     .done
        mov     ax, [frame_ticks]
        add     [done_ticks], ax
        cmp     word [done_ticks], kDoneTicks
        jae     DrawDonePanel
.done:  ret

; Goes on with the step that is under way.
Walk:   cmp     word [walk_all], 0
        je      .done
        mov     ax, [frame_ticks]
        add     ax, [walk_ticks]
        mov     [walk_ticks], ax
        cmp     ax, [walk_all]
        jb      .done
        mov     word [walk_all], 0
        mov     word [walk_ticks], 0
        cmp     word [lifted], -1
        je      .done
        mov     bx, [lifted]
        mov     word [lifted], -1
        push    bx
        call    DrawRest
        pop     bx
        cmp     byte [floor + bx], kPlace
        jne     .done
        mov     si, tune_home
        call    PlaySound
        cmp     word [away], 0
        jne     .done
        mov     byte [is_done], 1
        mov     byte [snow_rises], 1
        mov     word [done_ticks], 0
        call    EnterRecord
        mov     si, tune_done
        jmp     PlaySound
.done:  ret

HandleKey:
        call    NextPress
        jz      .held
        cmp     al, kKeyEsc
        je      .leave
        cmp     al, kKeyR
        je      .again
        cmp     al, kKeyM
        je      ToggleSound
        cmp     byte [is_done], 0
        jne     .done_keys
        cmp     al, kKeyH
        je      .help
        cmp     al, kKeyF1
        je      .help
        call    IsUndoKey
        je      .undo
        mov     ah, al
        call    WayOfKey
        jc      .none
        mov     [way_key], ah
        call    TryStep
        jnc     .none
        mov     si, tune_bump
        jmp     PlaySound
.none:  ret
.leave: mov     byte [play_ends], kLeave
        ret
.again: mov     byte [play_ends], kAgain
        ret
.done_keys:
        cmp     al, kKeyEnter
        je      .next
        cmp     al, kKeySpace
        jne     .none
.next:  mov     byte [play_ends], kNext
        ret
.help:  call    ShowHelp
        call    DrawRest
        jmp     ForgetKeys
.undo:  mov     [undo_key], al
        mov     word [undo_ticks], kUndoEach - kUndoFirst
        jmp     TakeBack
; No key was pressed anew: one that is held goes on.
.held:  cmp     byte [is_done], 0
        jne     .none
        movzx   bx, byte [undo_key]
        cmp     byte [key_held + bx], 0
        jne     .undo_on
        movzx   bx, byte [way_key]
        cmp     byte [key_held + bx], 0
        je      .none
        mov     al, bl
        call    WayOfKey
        jc      .none
        jmp     TryStep
.undo_on:
        mov     ax, [frame_ticks]
        add     [undo_ticks], ax
        cmp     word [undo_ticks], kUndoEach
        jl      .none
        sub     word [undo_ticks], kUndoEach
        jmp     TakeBack

; Zero flag: the key AL takes back.
IsUndoKey:
        cmp     al, kKeyZ
        je      .yes
        cmp     al, kKeyU
        je      .yes
        cmp     al, kKeyBackspace
.yes:   ret

; AL = direction of the key AL. Carry: it is no such key.
WayOfKey:
        mov     si, way_keys
.next:  cmp     byte [si], 0
        je      .no
        cmp     [si], al
        je      .found
        add     si, 2
        jmp     .next
.found: mov     al, [si + 1]
        clc
        ret
.no:    stc
        ret

; A step to AL, seen and heard. Carry: not possible.
TryStep:
        call    Step
        jc      .done
        mov     word [walk_all], kStepTicks
        mov     ax, [pushed_far]
        test    ax, ax
        jz      .walk
        mov     bx, ax
        dec     bx
        imul    bx, bx, kSlideTicks
        add     [walk_all], bx
        call    FindPushed
        mov     [lifted], bx
        call    DrawRest
        mov     si, tune_push
        cmp     word [pushed_far], 1
        je      .sound
        mov     si, tune_slide
        jmp     .sound
.walk:  push    es
        mov     es, [picture]
        call    DrawSteps
        pop     es
        mov     si, tune_step
.sound: call    PlaySound
        clc
.done:  ret

; BX = cell where the crock that was pushed now stands.
FindPushed:
        movzx   bx, byte [facing]
        shl     bx, 1
        mov     ax, [way + bx]
        imul    ax, [pushed_far]
        mov     bx, [pushed_from]
        add     bx, ax
        ret

TakeBack:
        call    Undo
        jc      .done
        call    DrawRest
        mov     si, tune_undo
        call    PlaySound
.done:  ret

kKeySpace       equ 39h                 ; scan codes
kKeyR           equ 13h
kKeyU           equ 16h
kKeyW           equ 11h
kKeyS           equ 1Fh
kKeyH           equ 23h
kKeyZ           equ 2Ch
kKeyM           equ 32h
kKeyF1          equ 3Bh

way_keys:       db kKeyUp, kUp, kKeyLeft, kLeft, kKeyRight, kRight, kKeyDown, kDown
                db kKeyW, kUp, kKeyA, kLeft, kKeyD, kRight, kKeyS, kDown, 0

tune_step:      notes NOTE(140),1
tune_bump:      notes NOTE(70),2
tune_push:      notes NOTE(95),2, NOTE(80),2, NOTE(90),2
tune_slide:     notes NOTE(95),2, NOTE(700),2, NOTE(800),2, NOTE(900),2, NOTE(1000),2, NOTE(1100),2
tune_home:      notes kG5,4, kC6,8
tune_undo:      notes NOTE(300),2, NOTE(250),2
tune_done:      notes kC5,8, kE5,8, kG5,8, kC6,20, 0,3, kA5,8, kG5,8, kC6,34

section .bss
frame_ticks:    resw 1
play_ends:      resb 1
is_done:        resb 1
done_ticks:     resw 1
walk_ticks:     resw 1                  ; of the step under way
walk_all:       resw 1                  ; that it takes; 0: there is none
lifted:         resw 1                  ; cell that a crock on its way will come to, or -1
way_key:        resb 1
undo_key:       resb 1
undo_ticks:     resw 1
section .text
