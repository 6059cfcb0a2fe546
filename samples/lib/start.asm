; The frame of a program in graphics: start and end. To be included first, by a .COM program that
; gives
;   Prepare          what is to be done before the screen changes; what it says may be read then
;   MainLoop         the program itself, with screen, timer and keyboard taken; it ends by ret
;   text_no_memory   ended by "$", for when less than 200 KB are free
; and that ends its variables, which are 0 at the start, by the labels `variables_end` and, with
; room before it, `stack_top`. Procedures keep DS and SS and need the direction flag clear; what they
; take and give stands with each, and other registers are lost unless they save them by pusha.

        cpu     386
        org     100h

section .bss
variables:
section .text

start:
        cld
        mov     sp, stack_top
        mov     bx, stack_top + 15
        shr     bx, 4
        mov     ah, 4Ah                 ; give back what lies behind the program
        int     21h
        jc      NoMemory
        call    ClearVariables
        call    AllocatePictures
        jc      NoMemory
        call    GuardAgainstDos
        mov     dx, name_ready
        call    RemoveFile
        call    Prepare
        call    EnterGraphics
        call    TakeTimer
        call    TakeKeyboard
        call    MainLoop
        call    FadeOut
        call    ReleaseKeyboard
        call    ReleaseTimer
        call    LeaveGraphics
        mov     ax, 4C00h
        int     21h

NoMemory:
        mov     dx, text_no_memory
        mov     ah, 9
        int     21h
        mov     ax, 4C01h
        int     21h

; A .COM file holds nothing of what is reserved behind its end.
ClearVariables:
        push    ds
        pop     es
        mov     di, variables
        mov     cx, variables_end - variables
        xor     al, al
        rep     stosb
        ret

; Ctrl-C must not end the program with our interrupts in place, and a disk that fails must give an
; error, not a question. DOS puts both vectors back at the end.
GuardAgainstDos:
        mov     dx, IgnoreBreak
        mov     ax, 2523h
        int     21h
        mov     dx, FailDisk
        mov     ax, 2524h
        int     21h
        ret
FailDisk:
        mov     al, 3
IgnoreBreak:
        iret
