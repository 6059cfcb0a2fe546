; Keys: menus and names take letters from the BIOS, the play asks which keys are held down.

kKeyEsc         equ 01h                 ; scan codes
kKeyBackspace   equ 0Eh
kKeyEnter       equ 1Ch
kKeyA           equ 1Eh
kKeyD           equ 20h
kKeyUp          equ 48h
kKeyLeft        equ 4Bh
kKeyRight       equ 4Dh
kKeyDown        equ 50h

TakeKeyboard:
        push    es
        mov     ax, 3509h
        int     21h
        mov     [old_keyboard], bx
        mov     [old_keyboard + 2], es
        pop     es
        mov     dx, OnKeyboard
        mov     ax, 2509h
        int     21h
        ret

ReleaseKeyboard:
        push    ds
        lds     dx, [old_keyboard]
        mov     ax, 2509h
        int     21h
        pop     ds
        ret

; The interrupt: notes what is held, and passes the code on to the BIOS.
OnKeyboard:
        push    ax
        push    bx
        in      al, 60h
        mov     bl, al
        and     bx, 7Fh
        test    al, 80h
        jnz     .release
        mov     byte [cs:key_hit + bx], 1
        cmp     byte [cs:key_held + bx], 1
        je      .pass                   ; repeated by the keyboard
        mov     byte [cs:key_held + bx], 1
        mov     al, bl
        mov     bx, [cs:key_order_end]
        mov     [cs:key_order + bx], al
        inc     bx
        and     bx, kKeyOrder - 1
        mov     [cs:key_order_end], bx
        jmp     .pass
.release:
        mov     byte [cs:key_held + bx], 0
.pass:  pop     bx
        pop     ax
        jmp     far [cs:old_keyboard]

; AH = scan code, AL = letter of the next key from the BIOS. Zero flag: there is none.
ReadKey:
        mov     ah, 1
        int     16h
        jz      .none
        xor     ah, ah
        int     16h
        test    ax, ax                  ; never zero
.none:  ret

; AL = scan code of the next key that was pressed, in the order of pressing; what the keyboard repeats
; does not count. Zero flag: there is none. The BIOS forgets what it has.
NextPress:
        call    ReadKey
        jnz     NextPress
        push    bx
        mov     bx, [key_order_begin]
        cmp     bx, [key_order_end]
        je      .none
        mov     al, [key_order + bx]
        inc     bx
        and     bx, kKeyOrder - 1
        mov     [key_order_begin], bx
        test    al, al                  ; never zero
.none:  pop     bx
        ret

; Forgets all keys that were hit but not used.
ForgetKeys:
        call    NextPress
        jnz     ForgetKeys
        push    es
        push    ds
        pop     es
        mov     di, key_hit
        mov     cx, 128
        xor     al, al
        rep     stosb
        pop     es
        ret

; BX = scan code. Zero flag clear: held now, or hit since the last call.
KeyActs:
        mov     al, [key_held + bx]
        or      al, [key_hit + bx]
        mov     byte [key_hit + bx], 0
        ret

old_keyboard:   dd 0
key_held:       times 128 db 0
key_hit:        times 128 db 0
kKeyOrder       equ 16                  ; keys kept; more lose the oldest ones
key_order:      times kKeyOrder db 0
key_order_begin: dw 0
key_order_end:  dw 0
